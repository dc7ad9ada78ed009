// Names that the logic compares or asks translations for; page files use them for these things.
#pragma once

inline constexpr char OSD_PAGE_MAIN[] = "main";

// Item keys
inline constexpr char OSD_KEY_IP_ADDR[] = "IpAddr";
inline constexpr char OSD_KEY_IP_MODE[] = "IpMode";
inline constexpr char OSD_KEY_DNS_MODE[] = "DnsMode";
inline constexpr char OSD_KEY_LED_COLOR[] = "LedCustomColor"; // 0xRRGGBB
inline constexpr char OSD_KEY_LED_RED[] = "LedCustomRed";     // its red byte
inline constexpr char OSD_KEY_LED_GREEN[] = "LedCustomGreen"; // its green byte

// Option keys and translation keys
inline constexpr char OSD_WORD_DHCP_IP[] = "DhcpIp";
inline constexpr char OSD_WORD_AUTO_MODE[] = "AutoMode";
