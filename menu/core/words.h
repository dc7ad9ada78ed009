// Names that the logic compares or asks translations for; page files use them for these things.
#pragma once

inline constexpr char OSD_PAGE_MAIN[] = "main";
inline constexpr char OSD_PAGE_ADVANCED[] = "advanced";
inline constexpr char OSD_PAGE_NETWORK[] = "network";
inline constexpr char OSD_PAGE_EXPOSURE[] = "exposure";
inline constexpr char OSD_PAGE_WBLANCE[] = "wblance";
inline constexpr char OSD_PAGE_TALLY[] = "tally";
inline constexpr char OSD_PAGE_FORMAT[] = "format";
inline constexpr char OSD_PAGE_PIP[] = "pip";
inline constexpr char OSD_PAGE_VIDEO[] = "video";
inline constexpr char OSD_PAGE_ROTATE[] = "rotate";
inline constexpr char OSD_PAGE_RESTART[] = "restart";      // the confirm page of "rotate"
inline constexpr char OSD_PAGE_PART_CONFIRM[] = "confirm"; // stands in the name of every other confirm page

// Item keys
inline constexpr char OSD_KEY_IP_ADDR[] = "IpAddr";
inline constexpr char OSD_KEY_IP_MODE[] = "IpMode";
inline constexpr char OSD_KEY_DNS_MODE[] = "DnsMode";
inline constexpr char OSD_KEY_LED_COLOR[] = "LedCustomColor"; // 0xRRGGBB
inline constexpr char OSD_KEY_LED_RED[] = "LedCustomRed";     // its red byte
inline constexpr char OSD_KEY_LED_GREEN[] = "LedCustomGreen"; // its green byte

inline constexpr char OSD_KEY_LANGUAGE[] = "Language";
inline constexpr char OSD_KEY_VIEW_EXPOSURE[] = "ViewFollowExposure";
inline constexpr char OSD_KEY_VIEW_WB[] = "ViewFollowWB";
inline constexpr char OSD_KEY_YES[] = "Yes";
inline constexpr char OSD_KEY_NO[] = "No";
inline constexpr char OSD_KEY_CONFIRM[] = "Confirm"; // the last item that a confirmed page applies
inline constexpr char OSD_KEY_BACK[] = "Back";
inline constexpr char OSD_KEY_FACTORY_RESTORE[] = "FactoryRestore";
inline constexpr char OSD_KEY_RESTART[] = "Restart";
inline constexpr char OSD_KEY_LENS_CORRECTION[] = "LensCorrection";
inline constexpr char OSD_KEY_RESTORE_IMG[] = "RestoreImg";
inline constexpr char OSD_KEY_RESTORE_EXP[] = "RestoreExp";
inline constexpr char OSD_KEY_RESTORE_WB[] = "RestoreWB";
inline constexpr char OSD_KEY_HDMI_CFG[] = "HdmiCfg"; // under this key the confirmed page "video" is applied
inline constexpr char OSD_KEY_PIP[] = "Pip";          // and under this the page "pip"

// Languages with a rule of their own
inline constexpr char OSD_LANGUAGE_EN[] = "English";
inline constexpr char OSD_LANGUAGE_TC[] = "TraditionalChinese";

// Option keys and translation keys
inline constexpr char OSD_WORD_DHCP_IP[] = "DhcpIp";
inline constexpr char OSD_WORD_AUTO_MODE[] = "AutoMode";
inline constexpr char OSD_WORD_STATIC_IP[] = "StaticIp";
inline constexpr char OSD_WORD_ON[] = "On"; // compared with a label
inline constexpr char OSD_WORD_CONFIRM[] = "Confirm";
inline constexpr char OSD_WORD_FINISH[] = "Finish";
inline constexpr char OSD_WORD_LOADING[] = "Loading";
