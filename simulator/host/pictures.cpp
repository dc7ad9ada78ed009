#include "simulator/host/pictures.h"

#include <string>
#include <system_error>

#include "pages/data/picture_file.h"
#include "simulator/base/data.h"
#include "simulator/base/guard.h"
#include "simulator/base/resources.h"

namespace sim {
namespace {

namespace fs = std::filesystem;

bool is_older(const fs::path& file, const fs::path& other)
{
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    return error || time < fs::last_write_time(other, error);
}

bool are_equal(const fs::path& file, const fs::path& other)
{
    try {
        return read_text_file(file) == read_text_file(other);
    } catch (const BadInput&) { // what can't be read is no copy of anything
        return false;
    }
}

bool is_staged(const fs::path& file)
{
    const fs::path bitmap = staged_pictures() / file.stem().concat(".bmp");
    if (file.extension() == ".bmp") {
        return are_equal(file, bitmap);
    }
    const fs::path source = default_resources() / "pic" / file.filename();
    return are_equal(file, source) && !is_older(bitmap, source);
}

} // namespace

Pictures::Pictures(const fs::path& resources) : folder_(plain_path(resources) / "pic") {}

bool Pictures::has_name_of_one(const fs::path& file) const
{
    return file.parent_path() == folder_ && (file.extension() == ".svg" || file.extension() == ".bmp");
}

void Pictures::take_outdated()
{
    std::error_code error; // a folder that isn't there has none
    for (const auto& entry : fs::directory_iterator(folder_, error)) {
        if (has_name_of_one(entry.path()) && !is_staged(entry.path())) {
            (void)take(entry.path());
        }
    }
}

bool Pictures::take(const fs::path& file)
{
    return has_name_of_one(file) && guarded("resources", false, [&] {
               const std::string name = file.stem().concat(".bmp").string();
               if (fs::exists(fs::symlink_status(file))) {
                   replaced_.replace(name, pages::bitmap_of(pages::read_picture(file)));
               } else {
                   replaced_.restore(name);
               }
               return true;
           });
}

} // namespace sim
