// The camera as the benchmark needs it: services that answer at once, so that the library's own share shows.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <tinyxml2.h>

#include "osd_menu.h"

namespace bench {

// Holds the page files of pages() in a folder of its own, as long as it lives.
class PageFolder {
public:
    PageFolder();
    ~PageFolder();
    PageFolder(const PageFolder&) = delete;
    PageFolder& operator=(const PageFolder&) = delete;

private:
    std::filesystem::path folder_;
};

// A page of the camera's own, with ten items.
inline constexpr char camera_page[] = "image";

// Pixel formats by the library's number. The benchmark measures one of each size of a pixel.
inline constexpr const char* format_names[] = {"argb1555", "argb4444", "argb8888"};
inline constexpr uint32_t measured_formats[] = {1, 2};

// Initialises the library for a canvas of this kind; the result of OSD_MENU_InitSdkRes.
int start_library(bool is_4k, uint32_t pixel_format);

// Opens a page in place of an open one, without drawing.
void open_page(const std::string& name);
void close_page();

// The name of a page's file, and the file loaded by tinyxml2 alone; null for one that there is not.
std::string file_of(const std::string& page);
std::unique_ptr<tinyxml2::XMLDocument> load_document(std::string_view file);

// Sends what the library prints to nowhere, and returns a stream for the benchmark's own lines.
std::FILE* split_output();

// Set while a service of the camera runs; what it allocates isn't the library's.
extern bool in_service;

} // namespace bench
