#include "simulator/video/encode.h"

#include <SDL_image.h>
#include <array>
#include <csetjmp>
#include <cstdio> // jpeglib.h names FILE, but leaves it to others
#include <cstdlib>
#include <memory>
#include <new>
#include <stdexcept>

#include <jpeglib.h>

#include "simulator/base/surface.h"

namespace sim {
namespace {

std::runtime_error failure(const char* format, const Image& image, const char* words)
{
    return std::runtime_error(std::string("can't make a ") + format + " of " + std::to_string(image.size.width) + "x" +
                              std::to_string(image.size.height) + " pixels: " + words);
}

/// All that the compressor holds: it lives outside the function that a failure jumps out of.
struct JpegWork {
    JpegWork() = default;
    JpegWork(const JpegWork&) = delete;
    JpegWork& operator=(const JpegWork&) = delete;
    ~JpegWork()
    {
        jpeg_destroy_compress(&state);
        std::free(bytes); // the library takes it from malloc()
    }

    jpeg_compress_struct state{};
    jpeg_error_mgr errors{};
    std::jmp_buf failed{};
    std::array<char, JMSG_LENGTH_MAX> words{};
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
};

void jump_out(j_common_ptr state)
{
    auto& work = *static_cast<JpegWork*>(state->client_data);
    state->err->format_message(state, work.words.data());
    std::longjmp(work.failed, 1);
}

/// False, with words, when it fails. The library is C, so no exception may cross it: its failures jump, and no object
/// that needs an end lives in here.
bool compress(JpegWork& work, const Image& image, int quality)
{
    jpeg_compress_struct& state = work.state;
    if (setjmp(work.failed) != 0) {
        return false;
    }
    jpeg_create_compress(&state);
    jpeg_mem_dest(&state, &work.bytes, &work.size);
    state.image_width = static_cast<JDIMENSION>(image.size.width);
    state.image_height = static_cast<JDIMENSION>(image.size.height);
    state.input_components = 4;
    state.in_color_space = SDL_BYTEORDER == SDL_LIL_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB; // a Color in memory
    jpeg_set_defaults(&state);
    jpeg_set_quality(&state, quality, TRUE);
    jpeg_start_compress(&state, TRUE);
    while (state.next_scanline < state.image_height) {
        const Color* pixels = image.row(static_cast<int>(state.next_scanline));
        // The library takes rows without const, but only reads them.
        auto* row = reinterpret_cast<JSAMPLE*>(const_cast<Color*>(pixels));
        (void)jpeg_write_scanlines(&state, &row, 1);
    }
    jpeg_finish_compress(&state);
    return true;
}

struct FreeStream {
    void operator()(SDL_RWops* stream) const { SDL_FreeRW(stream); }
};

std::size_t append(SDL_RWops* stream, const void* bytes, std::size_t size, std::size_t count)
{
    try {
        static_cast<std::string*>(stream->hidden.unknown.data1)->append(static_cast<const char*>(bytes), size * count);
    } catch (const std::bad_alloc&) { // the caller is C
        return 0;
    }
    return count;
}

} // namespace

std::string encode_jpeg(const Image& image, int quality)
{
    JpegWork work;
    work.state.err = jpeg_std_error(&work.errors);
    work.errors.error_exit = jump_out;
    work.state.client_data = &work;
    if (!compress(work, image, quality)) {
        throw failure("JPEG", image, work.words.data());
    }
    return {reinterpret_cast<const char*>(work.bytes), work.size};
}

std::string encode_png(const Image& image, bool alpha)
{
    const std::uint32_t format = alpha ? SDL_PIXELFORMAT_ARGB8888 : SDL_PIXELFORMAT_RGB888;
    // SDL takes the pixels without const, but only reads them when it saves.
    const Surface surface(SDL_CreateRGBSurfaceWithFormatFrom(const_cast<Color*>(image.pixels.data()), image.size.width,
                                                             image.size.height, 32, image.size.width * 4, format));
    const std::unique_ptr<SDL_RWops, FreeStream> stream(SDL_AllocRW());
    std::string file;
    if (surface == nullptr || stream == nullptr) {
        throw failure("PNG", image, SDL_GetError());
    }
    stream->write = append;
    stream->hidden.unknown.data1 = &file;
    if (image.pixels.empty() || IMG_SavePNG_RW(surface.get(), stream.get(), 0) != 0) {
        throw failure("PNG", image, image.pixels.empty() ? "it has none" : SDL_GetError());
    }
    return file;
}

} // namespace sim
