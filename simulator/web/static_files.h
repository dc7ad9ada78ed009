// The files of the web page.
#pragma once

#include <filesystem>

namespace httplib {
struct Request;
struct Response;
} // namespace httplib

namespace sim {

/// Answers with a file of this folder, index.html for "/"; false when it has none of the requested name. Throws HttpError
/// for another method than GET. Files are read anew for each request, so that the page can be worked on while the camera
/// runs.
bool serve_page_file(const std::filesystem::path& folder, const httplib::Request& request, httplib::Response& response);

} // namespace sim
