#include "comm/font.h"

#include <SDL.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <utility>

#include "comm/log.h"
#include "comm/paths.h"
#include "osd_comm.h"

static constexpr int c_s32FontSize = 32; // pixels, until the first text sets its own

// SDL_RWops::close of a mapped font: the mapping ends with the font.
static int osdFontUnmap(SDL_RWops* pstFile)
{
    (void)munmap(pstFile->hidden.mem.base, static_cast<size_t>(pstFile->hidden.mem.stop - pstFile->hidden.mem.base));
    SDL_FreeRW(pstFile);
    return 0;
}

static SDL_RWops* osdFontWrap(void* pvFont, size_t uSize)
{
    SDL_RWops* pstFile = SDL_RWFromConstMem(pvFont, static_cast<int>(uSize));
    if (pstFile == nullptr) {
        (void)munmap(pvFont, uSize);
        return nullptr;
    }
    pstFile->close = osdFontUnmap;
    return pstFile;
}

static SDL_RWops* osdFontMap(const char* pcPath)
{
    const int s32Fd = open(pcPath, O_RDONLY | O_CLOEXEC);
    if (s32Fd < 0) {
        return nullptr;
    }
    struct stat stStat = {};
    void* pvFont = MAP_FAILED;
    if (fstat(s32Fd, &stStat) == 0 && S_ISREG(stStat.st_mode) && stStat.st_size > 0 && stStat.st_size <= INT_MAX) {
        pvFont = mmap(nullptr, static_cast<size_t>(stStat.st_size), PROT_READ, MAP_PRIVATE, s32Fd, 0);
    }
    (void)close(s32Fd); // the mapping holds the file
    return pvFont != MAP_FAILED ? osdFontWrap(pvFont, static_cast<size_t>(stStat.st_size)) : nullptr;
}

// All fonts hang on one list inside SDL_ttf, and a prompt opens its font while another thread draws the menu. Held for
// one opening or closing, never while something is drawn.
static pthread_mutex_t gs_stFontMutex = PTHREAD_MUTEX_INITIALIZER;

// Takes the lock for as long as it lives.
struct OSD_FONT_LOCK {
    OSD_FONT_LOCK() { (void)pthread_mutex_lock(&gs_stFontMutex); }
    ~OSD_FONT_LOCK() { (void)pthread_mutex_unlock(&gs_stFontMutex); }
    OSD_FONT_LOCK(const OSD_FONT_LOCK&) = delete;
    OSD_FONT_LOCK& operator=(const OSD_FONT_LOCK&) = delete;
};

static OSD_FONT_PTR osdFontOpen(const char* pcPath)
{
    SDL_RWops* pstFile = osdFontMap(pcPath);
    if (pstFile == nullptr) {
        return nullptr;
    }
    const OSD_FONT_LOCK stLock;
    return OSD_FONT_PTR(TTF_OpenFontRW(pstFile, 1, c_s32FontSize)); // 1: closes the file, always
}

void osdFontClose(TTF_Font* pstFont)
{
    const OSD_FONT_LOCK stLock;
    TTF_CloseFont(pstFont);
}

OSD_FONT_PTR osdFontRegular()
{
    OSD_FONT_PTR pstFont = osdFontOpen(OSD_PATH_FONT);
    if (pstFont == nullptr) {
        osdTrace("[MENU:%s:%d] Error! %s\n", OSD_PLACE(OSD_COMM_OpenTtfFont), "Load Font Error.");
    }
    return pstFont;
}

static OSD_FONT_PTR osdFontOpenOrRegular(const char* pcPath)
{
    OSD_FONT_PTR pstFont = osdFontOpen(pcPath);
    return pstFont != nullptr ? std::move(pstFont) : osdFontRegular();
}

OSD_FONT_PTR osdFontBold() { return osdFontOpenOrRegular(OSD_PATH_BOLD_FONT); }

OSD_FONT_PTR osdFontTraditionalChinese() { return osdFontOpenOrRegular(OSD_PATH_TC_FONT); }

bool osdFontSetSize(TTF_Font* pstFont, int s32Size, const char* pcFunc)
{
    if (TTF_SetFontSize(pstFont, s32Size) != 0) {
        osdTrace("%s %d\n", pcFunc, __LINE__);
        return false;
    }
    return true;
}
