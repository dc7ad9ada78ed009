// The functions at the end stand before those of the shared libraries, as the program's own symbols come first. Each
// keeps its arguments while a record is made, and always calls the function that it hides. A replay calls that directly:
// the detour, of about three nanoseconds, counts against the library.
#include "bench/recorder.h"

#include <SDL.h>
#include <SDL2_rotozoom.h>
#include <SDL_image.h>
#include <SDL_ttf.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "bench/camera.h"

namespace bench {
namespace {

struct Recording {
    Record record;
    std::map<const void*, size_t> numbers; // of the objects
};

Recording* recording = nullptr; // the one being made
int depth = 0;                  // calls under way into SDL and its companions

void count_allocation()
{
    if (recording != nullptr && depth == 0 && !in_service) {
        recording->record.allocations++;
    }
}

// An object made now; its address may have been another one's before.
size_t add_object(void* object)
{
    recording->numbers[object] = recording->record.objects.size();
    recording->record.objects.push_back(object);
    return recording->numbers[object];
}

// keep() makes of an argument what the record holds of it, again() makes of this an argument for the same call: numbers
// and colours as they are, texts as a copy.
template <typename T>
T keep(T plain)
{
    return plain;
}
template <typename T>
const T& again(const Objects& /*objects*/, const T& plain)
{
    return plain;
}

std::string keep(const char* text) { return text; }
const char* again(const Objects& /*objects*/, const std::string& text) { return text.c_str(); }

// A surface, font or file: made by a call of the record, or there before.
template <typename T>
struct Object {
    size_t number;
};

template <typename T>
Object<T> keep(T* object)
{
    const auto found = recording->numbers.find(object);
    return {found != recording->numbers.end() ? found->second : add_object(object)};
}

template <typename T>
T* again(const Objects& objects, Object<T> object)
{
    return static_cast<T*>(objects[object.number]);
}

// A rectangle, of which SDL gets a copy of its own: a blit writes the clipped one into it.
class Place {
public:
    explicit Place(const std::optional<SDL_Rect>& rect) : rect_(rect) {}
    operator SDL_Rect*() { return rect_ ? &*rect_ : nullptr; }

private:
    std::optional<SDL_Rect> rect_;
};

std::optional<SDL_Rect> keep(const SDL_Rect* rect) { return rect != nullptr ? std::optional(*rect) : std::nullopt; }
std::optional<SDL_Rect> keep(SDL_Rect* rect) { return keep(static_cast<const SDL_Rect*>(rect)); }
Place again(const Objects& /*objects*/, const std::optional<SDL_Rect>& rect) { return Place(rect); }

// A number that the call gives back.
struct Answer {
    bool is_wanted;
    mutable int number;
};

Answer keep(int* number) { return {number != nullptr, 0}; }
int* again(const Objects& /*objects*/, const Answer& answer) { return answer.is_wanted ? &answer.number : nullptr; }

// SDL shares one record among all surfaces of a format; the record's share keeps it alive.
using Format = std::shared_ptr<SDL_PixelFormat>;

Format keep(const SDL_PixelFormat* format) { return {SDL_AllocFormat(format->format), SDL_FreeFormat}; }
const SDL_PixelFormat* again(const Objects& /*objects*/, const Format& format) { return format.get(); }

// A file in memory: mapped anew for each call, as the library does.
struct MappedFile {
    std::string path;
    size_t size;
};

MappedFile keep(const void* bytes)
{
    std::ifstream regions("/proc/self/maps"); // "start-end rights offset device inode path"
    for (std::string line; std::getline(regions, line);) {
        std::uintptr_t start = 0;
        std::uintptr_t end = 0;
        char dash = '-';
        std::istringstream(line) >> std::hex >> start >> dash >> end;
        const size_t path = line.find('/');
        if (start == reinterpret_cast<std::uintptr_t>(bytes) && path != std::string::npos) {
            return {line.substr(path), end - start};
        }
    }
    std::fprintf(stderr, "memory that is no mapped file: the call cannot be repeated\n");
    std::abort();
}

const void* again(const Objects& /*objects*/, const MappedFile& mapped)
{
    const int file = open(mapped.path.c_str(), O_RDONLY | O_CLOEXEC);
    const void* bytes = mmap(nullptr, mapped.size, PROT_READ, MAP_PRIVATE, file, 0);
    close(file);
    return bytes;
}

int unmap(SDL_RWops* file)
{
    munmap(file->hidden.mem.base, static_cast<size_t>(file->hidden.mem.stop - file->hidden.mem.base));
    SDL_FreeRW(file);
    return 0;
}

// What is done to an object when a call of the record has made it.
template <typename T>
T* settle(T* object)
{
    return object;
}

SDL_RWops* settle(SDL_RWops* file)
{
    file->close = unmap;
    return file;
}

// Calls the hidden function, recorded when the call comes from outside. The own function tells the hidden ones apart.
template <auto* own, typename... Arguments>
auto pass_on(const char* name, Arguments... arguments)
{
    static const auto hidden = reinterpret_cast<decltype(own)>(dlsym(RTLD_NEXT, name));
    struct Inside {
        Inside() { depth++; }
        ~Inside() { depth--; }
    } const inside;
    if (recording == nullptr || depth > 1) {
        return hidden(arguments...);
    }
    const auto repeat = [kept = std::make_tuple(keep(arguments)...)](const Objects& objects) {
        return std::apply([&](const auto&... each) { return hidden(again(objects, each)...); }, kept);
    };
    auto& calls = recording->record.calls;
    if constexpr (std::is_pointer_v<decltype(hidden(arguments...))>) {
        auto* made = hidden(arguments...);
        calls.push_back({name, [repeat, number = add_object(made)](Objects& objects) {
                             objects[number] = settle(repeat(objects));
                         }});
        return made;
    } else {
        calls.push_back({name, repeat});
        return hidden(arguments...);
    }
}

} // namespace

Record record(const std::function<void()>& work)
{
    Recording made;
    recording = &made;
    work();
    recording = nullptr;
    return std::move(made.record);
}

void replay(Record& record)
{
    for (const Call& call : record.calls) {
        call.repeat(record.objects);
    }
}

} // namespace bench

using bench::pass_on;

extern "C" {

int access(const char* path, int mode) noexcept { return pass_on<&access>("access", path, mode); }

int TTF_SetFontSize(TTF_Font* font, int size) { return pass_on<&TTF_SetFontSize>("TTF_SetFontSize", font, size); }

int TTF_SizeUTF8(TTF_Font* font, const char* text, int* width, int* height)
{
    return pass_on<&TTF_SizeUTF8>("TTF_SizeUTF8", font, text, width, height);
}

SDL_Surface* TTF_RenderUTF8_Blended(TTF_Font* font, const char* text, SDL_Color color)
{
    return pass_on<&TTF_RenderUTF8_Blended>("TTF_RenderUTF8_Blended", font, text, color);
}

TTF_Font* TTF_OpenFontRW(SDL_RWops* file, int close_file, int size)
{
    return pass_on<&TTF_OpenFontRW>("TTF_OpenFontRW", file, close_file, size);
}

void TTF_CloseFont(TTF_Font* font) { pass_on<&TTF_CloseFont>("TTF_CloseFont", font); }

SDL_RWops* SDL_RWFromConstMem(const void* bytes, int size)
{
    return pass_on<&SDL_RWFromConstMem>("SDL_RWFromConstMem", bytes, size);
}

void SDL_FreeRW(SDL_RWops* file) { pass_on<&SDL_FreeRW>("SDL_FreeRW", file); }

SDL_Surface* IMG_Load(const char* file) { return pass_on<&IMG_Load>("IMG_Load", file); }

SDL_Surface* rotozoomSurfaceXY(SDL_Surface* source, double angle, double zoom_x, double zoom_y, int smooth)
{
    return pass_on<&rotozoomSurfaceXY>("rotozoomSurfaceXY", source, angle, zoom_x, zoom_y, smooth);
}

SDL_Surface* SDL_CreateRGBSurfaceWithFormat(Uint32 flags, int width, int height, int depth, Uint32 format)
{
    return pass_on<&SDL_CreateRGBSurfaceWithFormat>("SDL_CreateRGBSurfaceWithFormat", flags, width, height, depth,
                                                    format);
}

SDL_Surface* SDL_ConvertSurfaceFormat(SDL_Surface* source, Uint32 format, Uint32 flags)
{
    return pass_on<&SDL_ConvertSurfaceFormat>("SDL_ConvertSurfaceFormat", source, format, flags);
}

void SDL_FreeSurface(SDL_Surface* surface) { pass_on<&SDL_FreeSurface>("SDL_FreeSurface", surface); }

int SDL_SetSurfaceAlphaMod(SDL_Surface* surface, Uint8 alpha)
{
    return pass_on<&SDL_SetSurfaceAlphaMod>("SDL_SetSurfaceAlphaMod", surface, alpha);
}

int SDL_UpperBlit(SDL_Surface* source, const SDL_Rect* from, SDL_Surface* target, SDL_Rect* to)
{
    return pass_on<&SDL_UpperBlit>("SDL_UpperBlit", source, from, target, to);
}

int SDL_FillRect(SDL_Surface* target, const SDL_Rect* rect, Uint32 color)
{
    return pass_on<&SDL_FillRect>("SDL_FillRect", target, rect, color);
}

Uint32 SDL_MapRGBA(const SDL_PixelFormat* format, Uint8 red, Uint8 green, Uint8 blue, Uint8 alpha)
{
    return pass_on<&SDL_MapRGBA>("SDL_MapRGBA", format, red, green, blue, alpha);
}

// The heap of the C library under the names that it keeps for such a purpose.
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);

void* malloc(size_t size)
{
    bench::count_allocation();
    return __libc_malloc(size);
}

void* calloc(size_t count, size_t size)
{
    bench::count_allocation();
    return __libc_calloc(count, size);
}

void* realloc(void* block, size_t size)
{
    bench::count_allocation();
    return __libc_realloc(block, size);
}
}
