find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)
pkg_check_modules(SDL2_IMAGE REQUIRED IMPORTED_TARGET SDL2_image)
pkg_check_modules(SDL2_TTF REQUIRED IMPORTED_TARGET SDL2_ttf>=2.0.18)
pkg_check_modules(SDL2_GFX REQUIRED IMPORTED_TARGET SDL2_gfx)
pkg_check_modules(TINYXML2 REQUIRED IMPORTED_TARGET tinyxml2)

# SDL.h would read the compiler's headers for vector instructions, which is most of its time and of use to nobody here.
set(OSD_SDL_WITHOUT_VECTORS SDL_DISABLE_IMMINTRIN_H SDL_DISABLE_MMINTRIN_H SDL_DISABLE_XMMINTRIN_H
                            SDL_DISABLE_EMMINTRIN_H SDL_DISABLE_PMMINTRIN_H SDL_DISABLE_ARM_NEON_H)
set_property(TARGET PkgConfig::SDL2 APPEND PROPERTY INTERFACE_COMPILE_DEFINITIONS ${OSD_SDL_WITHOUT_VECTORS})
