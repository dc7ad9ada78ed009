# libosdmenu.so, layer by layer. Its objects are a target of their own: the page tools are linked with them.
set(OSD_LIBRARY_SOURCES
  comm/arrow.cpp
  comm/exports.cpp
  comm/font.cpp
  comm/image.cpp
  comm/log.cpp
  comm/paths.cpp
  comm/shape.cpp
  comm/surface.cpp
  comm/text.cpp
  comm/text_surface.cpp
  comm/widget.cpp
  menu/core/attr.cpp
  menu/core/canvas.cpp
  menu/core/change.cpp
  menu/core/exports.cpp
  menu/core/flat_list.cpp
  menu/core/item.cpp
  menu/core/item_parse.cpp
  menu/core/language.cpp
  menu/core/manager.cpp
  menu/core/network.cpp
  menu/core/page.cpp
  menu/core/page_fault.cpp
  menu/core/page_parse.cpp
  menu/core/query.cpp
  menu/core/refresh.cpp
  menu/core/value_bind.cpp
  menu/core/value_status.cpp
  menu/nav/address.cpp
  menu/nav/apply.cpp
  menu/nav/button.cpp
  menu/nav/confirm_item.cpp
  menu/nav/confirm_page.cpp
  menu/nav/cursor.cpp
  menu/nav/exports.cpp
  menu/nav/home_key.cpp
  menu/nav/icon_cursor.cpp
  menu/nav/keys.cpp
  menu/nav/list_cursor.cpp
  menu/nav/paged_cursor.cpp
  menu/nav/stack.cpp
  menu/nav/tally.cpp
  menu/nav/value_step.cpp
  menu/nav/waiting.cpp
  menu/render/exports.cpp
  menu/render/icon_grid.cpp
  menu/render/layouts.cpp
  menu/render/list.cpp
  menu/render/paged_list.cpp
  menu/render/popup.cpp
  menu/render/row.cpp
  menu/render/tolvane_list.cpp
  menu/render/value.cpp
  menu/render/vertical_list.cpp
  prompt/exports.cpp
  prompt/prompt.cpp
  prompt/zoom_ratio.cpp)
add_library(osdmenu_objects OBJECT ${OSD_LIBRARY_SOURCES})
target_include_directories(osdmenu_objects PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR})
target_link_libraries(osdmenu_objects
  PUBLIC PkgConfig::SDL2 PkgConfig::SDL2_TTF PkgConfig::SDL2_IMAGE PkgConfig::SDL2_GFX PkgConfig::TINYXML2
         Threads::Threads
  PRIVATE osd_flags)
if(OSD_UNITE_LIBRARY) # for checks alone: the product and what the benchmark measures are compiled file by file
  osd_unite_folders(osdmenu_objects)
else() # For size GCC clears and copies short texts by a slow instruction. These files read a page, each attribute of it.
  set_source_files_properties(
    comm/text.cpp menu/core/attr.cpp menu/core/item_parse.cpp menu/core/page_parse.cpp menu/core/value_bind.cpp
    PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O2>)
endif()
target_compile_definitions(osdmenu_objects PRIVATE OSD_RESOURCE_DIR="${OSD_RESOURCE_DIR}")
# Nobody replaces single functions of the library, so calls within a file need no detour. The camera's flash is small, and
# a redraw's time is SDL's.
target_compile_options(osdmenu_objects PRIVATE -fno-semantic-interposition $<$<CONFIG:Release>:-Os>)
set_target_properties(osdmenu_objects PROPERTIES
  POSITION_INDEPENDENT_CODE ON
  C_VISIBILITY_PRESET hidden
  CXX_VISIBILITY_PRESET hidden
  VISIBILITY_INLINES_HIDDEN ON)

add_library(osdmenu SHARED $<TARGET_OBJECTS:osdmenu_objects>)
add_library(osdmenu::osdmenu ALIAS osdmenu)
target_include_directories(osdmenu
  PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
         $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
         $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/osdmenu>)
target_link_libraries(osdmenu
  PUBLIC PkgConfig::SDL2 PkgConfig::SDL2_TTF Threads::Threads
  PRIVATE $<BUILD_INTERFACE:osd_flags> PkgConfig::SDL2_IMAGE PkgConfig::SDL2_GFX PkgConfig::TINYXML2)
set_target_properties(osdmenu PROPERTIES
  LINKER_LANGUAGE CXX
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/osdmenu.map)
# Templates of the standard library are visible by themselves; the map keeps inside what is no name of the interface.
target_link_options(osdmenu PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/osdmenu.map)
