// Where the resources lie. The build sets the folder; the camera's is /app/resource.
#pragma once

#ifndef OSD_RESOURCE_DIR
#error "OSD_RESOURCE_DIR comes from the build"
#endif

inline constexpr char OSD_PATH_FONT[] = OSD_RESOURCE_DIR "/ttf/font.ttf";
inline constexpr char OSD_PATH_BOLD_FONT[] = OSD_RESOURCE_DIR "/ttf/bold_font.ttf";
inline constexpr char OSD_PATH_TC_FONT[] = OSD_RESOURCE_DIR "/ttf/tcfont.ttf";
inline constexpr char OSD_DIR_PIC[] = OSD_RESOURCE_DIR "/pic/";
inline constexpr char OSD_DIR_MENU[] = OSD_RESOURCE_DIR "/menu/";

inline constexpr unsigned OSD_PATH_LEN = 128; // bytes of a path's field

// Puts a path together; what is beyond 126 bytes is cut.
void osdPathBuild(char (&acPath)[OSD_PATH_LEN], const char* pcDir, const char* pcStem, const char* pcEnd);
