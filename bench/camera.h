// The camera as the benchmark needs it: services that answer at once, so that the library's own share shows.
#pragma once

#include <filesystem>

#include "osd_menu.h"

namespace tinyxml2 {
class XMLDocument;
}

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

// Initialises the library for a canvas of this kind; the result of OSD_MENU_InitSdkRes.
int start_library(bool is_4k, uint32_t pixel_format);

// Opens the page of that many rows in place of an open one, without drawing.
void open_page(int rows);
void close_page();

// The page file of that many rows, loaded by tinyxml2 alone.
tinyxml2::XMLDocument* load_document(int rows);

// Sends what the library prints to nowhere, and returns a stream for the benchmark's own lines.
std::FILE* split_output();

// Set while a service of the camera runs; what it allocates isn't the library's.
extern bool in_service;

} // namespace bench
