/* The canvas record: what passes between the menu and the camera's media service. Compiles as C11 and as C++17. */
#pragma once

#include <SDL.h>

#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* A memory block as MPP_AllocMem fills it. Only the address is read here, the rest is the service's. */
typedef struct tagOSD_MEM_S {
    uint64_t u64Service0;
    void* pvVirAddr; /* pixels, usable for the size asked for */
    uint64_t au64Service[2];
} tagOSD_MEM_S;

/* A drawing surface in media memory and its place on the picture, in the machine's byte order. */
typedef struct tagOSD_MENU_CANVAS_S {
    tagOSD_MEM_S stMem;
    tagOSD_MEM_S stScaleMem; /* second block of the same size, for the service's own use */
    SDL_Rect stMenuRect;     /* place and size in pixels; w by h is the size of the pixel block */
    SDL_Rect stBaseRect;     /* the picture that the rectangle and the fractions refer to */
    uint32_t enPixFmt;       /* 0 ARGB1555, 1 ARGB4444, 2 ARGB8888 */
    float f32X;              /* fractions of the base */
    float f32Y;
    float f32W;
    float f32H;
    uint8_t u8CanvasAttr; /* 128 on the menu's canvas */
    uint8_t au8Reserved[19];
} tagOSD_MENU_CANVAS_S;

/* Names one video channel; opaque, passed through unread. */
typedef struct OSD_ATTACH_INFO_S OSD_ATTACH_INFO_S;

#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu
static_assert(sizeof(tagOSD_MENU_CANVAS_S) == 136, "canvas record");
static_assert(offsetof(tagOSD_MEM_S, pvVirAddr) == 8, "memory block");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, stScaleMem) == 32, "canvas record");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, stMenuRect) == 64, "canvas record");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, stBaseRect) == 80, "canvas record");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, enPixFmt) == 96, "canvas record");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, f32X) == 100, "canvas record");
static_assert(offsetof(tagOSD_MENU_CANVAS_S, u8CanvasAttr) == 116, "canvas record");
#endif

OSD_EXTERN_C_END
