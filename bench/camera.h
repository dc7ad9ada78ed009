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

// Holds the page files of 5, 10 and 20 rows in a folder of its own, as long as it lives.
class PageFolder {
public:
    PageFolder();
    ~PageFolder();
    PageFolder(const PageFolder&) = delete;
    PageFolder& operator=(const PageFolder&) = delete;

private:
    std::filesystem::path folder_;
};

inline constexpr int row_counts[] = {5, 10, 20};

// A page of the camera's own, with ten items; the pages of rows are called "rows5" and so on.
inline constexpr char camera_page[] = "image";
std::string rows_page(int rows);

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
