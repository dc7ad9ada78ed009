// Files that are written while the next picture is drawn.
#pragma once

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <future>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "pages/data/errors.h"
#include "pages/preview/canvas.h"

namespace pages {

/// Makes a folder and those above it, when there is none. Throws BadInput.
inline void make_folder(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw BadInput("the folder " + folder.string() + " can't be made: " + error.message());
    }
}

/// Throws BadInput.
inline void write_text(const std::filesystem::path& file, const std::string& text)
{
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush()) {
        throw BadInput(file.string() + " can't be written");
    }
}

/// As many pictures at a time as the machine has cores.
class PictureWriter {
public:
    /// Throws what a file before it has failed with.
    void write(Canvas picture, const std::filesystem::path& file)
    {
        if (files_.size() >= std::max(1U, std::thread::hardware_concurrency())) {
            wait_for_first();
        }
        files_.push_back(std::async(std::launch::async, [picture = std::move(picture), file] { picture.save(file); }));
    }

    /// Throws what a file has failed with.
    void finish()
    {
        while (!files_.empty()) {
            wait_for_first();
        }
    }

private:
    void wait_for_first()
    {
        std::future<void> first = std::move(files_.front());
        files_.pop_front();
        first.get();
    }

    std::deque<std::future<void>> files_;
};

} // namespace pages
