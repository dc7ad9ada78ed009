# With OSD_UNITE_FOLDERS a target's files are compiled a folder at once: clang-tidy reads large headers once a folder
# instead of once a file, which takes a quarter of the time. Helpers of one folder therefore have different names;
# clang++ calls two of the same name a redefinition. CMake's own unity builds won't do: the analyzer looks into included
# files only when the name of the including one begins with "UnifiedSource".
function(osd_unite_folders target)
  if(NOT OSD_UNITE_FOLDERS)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  set(names)
  foreach(source IN LISTS sources)
    get_filename_component(folder ${source} DIRECTORY)
    string(MAKE_C_IDENTIFIER ${folder} name)
    list(APPEND names ${name})
    string(APPEND lines_${name} "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${source}\"\n")
  endforeach()
  list(REMOVE_DUPLICATES names)
  set(united)
  foreach(name IN LISTS names)
    list(APPEND united ${CMAKE_CURRENT_BINARY_DIR}/UnifiedSource-${target}-${name}.cpp)
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/UnifiedSource-${target}-${name}.cpp CONTENT "${lines_${name}}")
  endforeach()
  set_target_properties(${target} PROPERTIES SOURCES "${united}")
endfunction()
