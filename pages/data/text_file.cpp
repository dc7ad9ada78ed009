#include "pages/data/text_file.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#include "pages/data/errors.h"

namespace pages {

bool is_of_editor(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    return !name.empty() && (name.front() == '.' || name.front() == '#' || name.back() == '~');
}

std::string read_text_file(const std::filesystem::path& path)
{
    std::error_code ignored; // what can't be looked at can't be opened either
    if (std::filesystem::is_directory(path, ignored)) {
        throw BadInput(Place{path.string()}, "is a folder, expected a file");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw BadInput(Place{path.string()}, std::string("can't be read: ") + std::generic_category().message(errno));
    }
    try {
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    } catch (const std::ios_base::failure& error) { // the only way in which this iterator tells of a bad disk
        throw BadInput(Place{path.string()}, std::string("can't be read: ") + error.what());
    }
}

void write_text_file(const std::filesystem::path& path, const std::string& content)
{
    const std::filesystem::path part = path.string() + ".part";
    std::ofstream file(part, std::ios::binary);
    file << content;
    file.close();
    std::error_code error;
    if (file) {
        std::filesystem::rename(part, path, error);
    }
    if (!file || error) {
        const int reason = error ? error.value() : errno;
        std::filesystem::remove(part, error);
        throw BadInput(Place{path.string()}, "can't be written: " + std::generic_category().message(reason));
    }
}

} // namespace pages
