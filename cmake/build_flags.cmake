# What every target of this project is compiled with; link it as osd_flags.
add_library(osd_flags INTERFACE)
add_library(osd_warnings INTERFACE) # the same without the sanitizers of OSD_SANITIZE
target_link_libraries(osd_flags INTERFACE osd_warnings)
target_compile_options(osd_warnings INTERFACE
  -Wall -Wextra -Wconversion -Wshadow
  $<$<COMPILE_LANGUAGE:CXX>:-Wdouble-promotion -Wnon-virtual-dtor -Woverloaded-virtual>
  # Arm has a fused multiply-add; used in a layout formula, it could move a row by a pixel.
  -ffp-contract=off)
if(OSD_SANITIZE)
  target_compile_options(osd_flags INTERFACE -fsanitize=${OSD_SANITIZE} -fno-omit-frame-pointer
                                             -fno-sanitize-recover=all)
  target_link_options(osd_flags INTERFACE -fsanitize=${OSD_SANITIZE})
endif()

# The same for programs and tests. Three of the undefined sanitizer's checks stay with the library: in templates of the
# standard library and of JSON they take a third of the compiler's time, and a null pointer ends there anyway.
add_library(osd_program_flags INTERFACE)
target_link_libraries(osd_program_flags INTERFACE osd_flags)
if(OSD_SANITIZE MATCHES undefined)
  target_compile_options(osd_program_flags INTERFACE -fno-sanitize=null,alignment,vptr)
endif()

# What most files of the programs read, and what takes longest to read.
set(OSD_LARGE_HEADERS <filesystem> <functional> <map> <nlohmann/json.hpp> <set> <string> <vector>)
