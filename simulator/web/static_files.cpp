#include "simulator/web/static_files.h"

#include <algorithm>
#include <string>

#include "simulator/base/data.h"
#include "simulator/web/http.h"

namespace sim {
namespace {

struct FileKind {
    const char* ending;
    const char* content_type;
};
constexpr FileKind file_kinds[] = {{".html", "text/html; charset=utf-8"},
                                   {".css", "text/css; charset=utf-8"},
                                   {".js", "text/javascript; charset=utf-8"},
                                   {".md", "text/plain; charset=utf-8"},
                                   {".svg", "image/svg+xml"}};

/// A name as our own files have it: no folder, no "..".
bool is_file_name(const std::string& name)
{
    const auto is_plain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
    };
    const auto dot = std::find(name.begin(), name.end(), '.');
    return dot != name.begin() && std::all_of(name.begin(), dot, is_plain);
}

} // namespace

bool serve_page_file(const std::filesystem::path& folder, const httplib::Request& request, httplib::Response& response)
{
    const std::string name = request.path == "/" ? "index.html" : request.path.substr(1);
    const std::size_t dot = name.find('.');
    if (!is_file_name(name) || dot == std::string::npos) {
        return false;
    }
    const std::string ending = name.substr(dot);
    const auto* kind = std::find_if(std::begin(file_kinds), std::end(file_kinds),
                                    [&ending](const FileKind& one) { return ending == one.ending; });
    if (kind == std::end(file_kinds) || !std::filesystem::is_regular_file(folder / name)) {
        return false;
    }
    if (request.method != "GET" && request.method != "HEAD") {
        response.set_header("Allow", "GET");
        throw HttpError(405, request.path + " takes GET, not " + request.method);
    }
    response.set_header("Cache-Control", "no-cache");
    response.set_content(read_text_file(folder / name), kind->content_type);
    return true;
}

} // namespace sim
