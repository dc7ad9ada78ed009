// The pictures that the menu draws by itself, whatever the pages say.
#pragma once

inline constexpr char OSD_PIC_NAV_ARROW[] = "nav_arrow";
inline constexpr char OSD_PIC_NAV_MOVE[] = "nav_move";
inline constexpr char OSD_PIC_NAV_ENTER[] = "nav_enter";
inline constexpr char OSD_PIC_NAV_SET[] = "nav_set";
inline constexpr char OSD_PIC_NAV_CHANGE_VALUE[] = "nav_change_value";
inline constexpr char OSD_PIC_ARROW_LEFT[] = "arrow_left";
inline constexpr char OSD_PIC_ARROW_RIGHT[] = "arrow_right";
inline constexpr char OSD_PIC_ARROW_TOP[] = "arrow_top";
inline constexpr char OSD_PIC_ARROW_BOTTOM[] = "arrow_bottom";
inline constexpr char OSD_PIC_ARROW_ALL[] = "arrow_all";
inline constexpr char OSD_PIC_BAR[] = "bar";
inline constexpr char OSD_PIC_BLOCK[] = "block";
inline constexpr char OSD_PIC_CONFIRM[] = "confirm";
inline constexpr char OSD_PIC_DEFAULT[] = "default";
inline constexpr char OSD_PIC_RESTART[] = "restart";

inline constexpr const char* c_apcPictureName[] = {
    OSD_PIC_NAV_ARROW,  OSD_PIC_NAV_MOVE,    OSD_PIC_NAV_ENTER, OSD_PIC_NAV_SET,      OSD_PIC_NAV_CHANGE_VALUE,
    OSD_PIC_ARROW_LEFT, OSD_PIC_ARROW_RIGHT, OSD_PIC_ARROW_TOP, OSD_PIC_ARROW_BOTTOM, OSD_PIC_ARROW_ALL,
    OSD_PIC_BAR,        OSD_PIC_BLOCK,       OSD_PIC_CONFIRM,   OSD_PIC_DEFAULT,      OSD_PIC_RESTART};
