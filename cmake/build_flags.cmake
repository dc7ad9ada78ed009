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
