// Fonts, read through a mapping of their file: SDL_ttf seeks and reads a file several thousand times for one page.
#include <SDL.h>
#include <SDL_ttf.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>

#include "comm/guard.h"
#include "comm/log.h"
#include "comm/paths.h"
#include "osd_comm.h"

static constexpr int gs_s32FontSize = 32; // pixels, until the first text sets its own

// SDL_RWops::close of a mapped font: the mapping ends with the font.
static int osdFontUnmap(SDL_RWops* pstFile)
{
    (void)munmap(pstFile->hidden.mem.base, static_cast<size_t>(pstFile->hidden.mem.stop - pstFile->hidden.mem.base));
    SDL_FreeRW(pstFile);
    return 0;
}

static SDL_RWops* osdFontWrap(void* pvFont, size_t u32Size)
{
    SDL_RWops* pstFile = SDL_RWFromConstMem(pvFont, static_cast<int>(u32Size));
    if (pstFile == nullptr) {
        (void)munmap(pvFont, u32Size);
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

static TTF_Font* osdFontOpen(const char* pcPath)
{
    SDL_RWops* pstFile = osdFontMap(pcPath);
    if (pstFile == nullptr) {
        return nullptr;
    }
    (void)pthread_mutex_lock(&gs_stFontMutex);
    TTF_Font* pstFont = TTF_OpenFontRW(pstFile, 1, gs_s32FontSize); // 1: closes the file, always
    (void)pthread_mutex_unlock(&gs_stFontMutex);
    return pstFont;
}

void osdFontClose(TTF_Font* pstFont)
{
    (void)pthread_mutex_lock(&gs_stFontMutex);
    TTF_CloseFont(pstFont);
    (void)pthread_mutex_unlock(&gs_stFontMutex);
}

TTF_Font* OSD_COMM_OpenTtfFont()
{
    TTF_Font* pstFont = osdFontOpen(OSD_PATH_FONT);
    if (pstFont == nullptr) {
        osdTrace("[MENU:%s:%d] Error! %s\n", OSD_PLACE, "Load Font Error.");
    }
    return pstFont;
}

static TTF_Font* osdFontOpenOrRegular(const char* pcPath)
{
    TTF_Font* pstFont = osdFontOpen(pcPath);
    return pstFont != nullptr ? pstFont : OSD_COMM_OpenTtfFont();
}

TTF_Font* OSD_COMM_OpenSelectTtfFont() { return osdFontOpenOrRegular(OSD_PATH_BOLD_FONT); }

TTF_Font* OSD_COMM_OpenTraditionalChineseTtfFont() { return osdFontOpenOrRegular(OSD_PATH_TC_FONT); }
