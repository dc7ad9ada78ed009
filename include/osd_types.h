/* Basic types of the on-screen menu. Compiles as C11 and as C++17. */
#pragma once

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define OSD_API __attribute__((visibility("default")))
#else
#define OSD_API
#endif

/* Enumerations are 32 bits wide. In C++ the type is fixed, so that a damaged value stays defined behaviour. */
#ifdef __cplusplus
#define OSD_ENUM(Name) enum Name : int32_t
#define OSD_EXTERN_C_BEGIN extern "C" {
#define OSD_EXTERN_C_END }
#else
#define OSD_ENUM(Name) \
    typedef int32_t Name; \
    enum
#define OSD_EXTERN_C_BEGIN
#define OSD_EXTERN_C_END
#endif

/* 1 true, 0 false. Where a text says "exactly 1", other values count as false. */
typedef int32_t OSD_BOOL;

enum {
    OSD_TEXT_LEN = 32,      /* bytes of a text field, the terminating zero included */
    OSD_OPTION_MAX = 32,    /* options of an item */
    OSD_PAGE_MAX = 5,       /* pages on the stack */
    OSD_CFG_LIST_LEN = 272, /* bytes of a setting's list of option keys, zero included */
    OSD_CFG_VALUE_LEN = 16, /* bytes of a setting's value text, zero included */
    OSD_ANSWER_LEN = 4096   /* bytes of an answer block: get-callback and device attributes */
};

/* A text field of the records, its end included. */
typedef char OSD_TEXT[OSD_TEXT_LEN];
