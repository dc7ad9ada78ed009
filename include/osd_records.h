/* Records of pages and items: the menu's whole state between two keys. Compiles as C11 and as C++17.
 *
 * A host reads these records in its callbacks. They belong to the library: a page owns its items, an item the sub-items
 * of its options. Nothing guards them; whoever touches them does so on the thread that calls the key functions. */
#pragma once

#include <SDL.h>

#include "osd_types.h"

OSD_EXTERN_C_BEGIN

/* Link of a circular doubly linked list; an empty list is a head that points to itself. */
typedef struct list_head {
    struct list_head* next;
    struct list_head* prev;
} list_head;

/* How a page is laid out; the page file's Layout. */
OSD_ENUM(tagPAGE_LAYOUT_E){
    PAGE_LAYOUT_ICON = 0,             /* "icon" */
    PAGE_LAYOUT_VERTICAL = 1,         /* "vertical_align" */
    PAGE_LAYOUT_HORIZONTAL = 2,       /* "horizontal_align" */
    PAGE_LAYOUT_VERTICAL_TOLVANE = 3, /* "vertical_tolvane_align" */
    PAGE_LAYOUT_VERTICAL_KETH = 4,    /* "vertical_align_keth" */
    PAGE_LAYOUT_HORIZONTAL_KETH = 5,  /* "horizontal_align_keth" */
};

OSD_ENUM(tagPAGE_TITLE_POS_E){
    PAGE_TITLE_LEFT = 0,
    PAGE_TITLE_RIGHT = 1,
    PAGE_TITLE_CENTER = 2,
};

/* What an item shows; the page file's Ctx. Only the contexts with VAL carry a bound value. */
OSD_ENUM(tagITEM_CTX_E){
    ICON = 0,          /* a bitmap */
    ICON_TXT = 1,      /* a bitmap with text */
    NAME = 2,          /* the label alone */
    NAME_BAR_VAL = 3,  /* label, value bar and value */
    NAME_VAL = 4,      /* label and value */
    NAME_IP_VAL = 5,   /* label and an address value */
    ICON_TXT_KETH = 6, /* a bitmap with text in the paged skin */
};

/* How an item behaves; the page file's Attr. */
OSD_ENUM(tagITEM_ATTR_E){
    CONST_TXT = 0,         /* fixed text, no value */
    STATUS = 1,            /* read-only text from a device source */
    KEY_WITH_MSG = 2,      /* a value that waits for the home key and shows a message until then */
    COMMON = 3,            /* a value changed by left and right */
    EDITABLE = 4,          /* a text edited digit by digit */
    CONFIRM = 5,           /* a button that calls the business function */
    CONFIRM_POP = 6,       /* a button that shows "Loading" and opens a confirm page */
    CONFIRM_POP_BTN = 7,   /* a button without a bound value that opens a confirm page */
    SUBITEM = 8,           /* a value with a list of sub-items for each option */
    SUBPAGE = 9,           /* opens a sub-page */
    MSG_LINE = 10,         /* local to a renderer: the page's message line */
    MSG_WITH_SUBITEM = 11, /* KEY_WITH_MSG with a list of sub-items for each option */
    TITLE_LINE = 12,       /* local to a renderer: the title line */
};

/* How the value area of an item is used; the page file's ValType. */
OSD_ENUM(tagITEM_VAL_TYPE_E){
    NUMERICAL = 0,
    OPTTXT = 1,
    EDITTXT = 2,
};

/* Which key hints the Tolvane list draws; the page file's PicType, NONE for any other word or no word. */
OSD_ENUM(tagITEM_PIC_TYPE_E){
    MAINTYPE = 0, SUBTYPE = 1, IPTYPE = 2, CONFIRMTYPE = 3, PIC_TYPE_NONE = 4,
};

/* Horizontal placing of a label; a page file can only ask for the centre. */
OSD_ENUM(tagITEM_POS_E){
    ITEM_POS_LEFT = 0,
    ITEM_POS_RIGHT = 1,
    ITEM_POS_CENTER = 2,
};

/* Nesting depth, a plain count: a sub-item has its parent's level plus 1. */
OSD_ENUM(tagITEM_LEVEL_E){
    ITEM_LEVEL_TOP = 0,         /* top-level item of a page without title, and the title itself */
    ITEM_LEVEL_UNDER_TITLE = 1, /* top-level item of a page with title */
};

/* One item. Allocated zero-filled, one heap block each.
 * Value area by use:
 *   OPTTXT                acValue[i] is the label of option i in the current language, acValueKey[i] its key
 *   NUMERICAL             the six numbers; s32Cur is shown, s32Saved was committed last
 *   EDITABLE item         acValue[0] the stored text, acValue[1] the text being edited
 *   STATUS item           acValue[0] the text shown
 *   CONFIRM, CONFIRM_POP  acValue[0] the button's text, acValueKey[0] its key */
typedef struct tagITEM_NODE_S {
    tagITEM_CTX_E enCtx;
    char acPic[OSD_TEXT_LEN];       /* bitmap stem of an icon */
    char acSelectPic[OSD_TEXT_LEN]; /* bitmap stem of the selected icon, skin 1 only */
    char acItemName[OSD_TEXT_LEN];  /* label in the current language */
    char acItemIndex[OSD_TEXT_LEN]; /* key of label and setting */
    tagITEM_LEVEL_E enLevel;
    char acSubPage[OSD_TEXT_LEN];     /* page that a SUBPAGE item opens */
    char acConfirmPage[OSD_TEXT_LEN]; /* page that a CONFIRM_POP or CONFIRM_POP_BTN item opens */
    char acMsgKey[OSD_TEXT_LEN];
    char acMsg[OSD_TEXT_LEN];      /* message in the current language */
    char acDataZone[OSD_TEXT_LEN]; /* data zone of the setting, empty when the page file names none */
    tagITEM_VAL_TYPE_E enValType;
    union {
        char acValue[OSD_OPTION_MAX][OSD_TEXT_LEN];
        __extension__ struct {
            int32_t s32Min;
            int32_t s32Max;
            int32_t s32Reserved;
            int32_t s32Step;
            int32_t s32Cur;
            int32_t s32Saved;
        };
    };
    char acValueKey[OSD_OPTION_MAX][OSD_TEXT_LEN]; /* option keys as the configuration stores them */
    int32_t s32CurIdx;                             /* option on screen */
    int32_t s32SavedIdx;                           /* option committed last */
    int32_t s32ValCnt;                             /* valid options, 0 to 32 */
    list_head astSubList[OSD_OPTION_MAX];          /* tagITEM_NODE_S::stNode; heads below s32ValCnt are lists */
    tagITEM_PIC_TYPE_E enPicType;
    tagITEM_ATTR_E enAttr;
    SDL_Rect stRect;   /* where an icon page placed the item */
    OSD_BOOL bActive;  /* holds the cursor, all layouts but icon */
    OSD_BOOL bSubItem; /* sits in an astSubList */
    tagITEM_POS_E enItemPos;
    int32_t s32ItemCnt;         /* items on the line in a horizontal layout */
    int32_t s32ItemIndexOnLine; /* place on that line */
    OSD_BOOL bShowValue;        /* value is read live at each draw */
    OSD_BOOL bLine;             /* separator line above the item */
    int32_t s32EditCursor;      /* digit position of address editing */
    int32_t s32NumOfChar;       /* characters of an address field */
    OSD_BOOL bEditing;
    list_head stNode;    /* link in the page's stItemList or a parent's astSubList entry */
    list_head stTmpNode; /* link in the most recent flattened list */
} tagITEM_NODE_S;

/* Page turning of a paged sequence. */
typedef struct tagPAGE_TURN_S {
    OSD_BOOL bCurPagesNum;
    char acCurPagesNum[OSD_TEXT_LEN]; /* page number text behind the title */
    OSD_BOOL bNextPage;
    char acNextPage[OSD_TEXT_LEN];
    OSD_BOOL bPrevPage;
    char acPrevPage[OSD_TEXT_LEN]; /* stored only: going back pops the stack */
} tagPAGE_TURN_S;

typedef struct tagPAGE_NODE_S {
    char acPageName[OSD_TEXT_LEN]; /* stem of the page file */
    tagPAGE_LAYOUT_E enLayout;
    int32_t s32CountPerLine; /* icons in a row, icon pages only */
    OSD_BOOL bTitle;
    tagPAGE_TITLE_POS_E enTitlePos;
    char acTitle[OSD_TEXT_LEN]; /* in the current language */
    char acTitleKey[OSD_TEXT_LEN];
    OSD_BOOL bKeyMsg;            /* a message line is pending */
    char acKeyMsg[OSD_TEXT_LEN]; /* its text */
    OSD_BOOL bConfirmBtn;        /* values are applied by a confirm step */
    OSD_BOOL bRdOnly;
    list_head stItemList; /* tagITEM_NODE_S::stNode, in file order */
    int32_t s32SelIdx;    /* selected item of an icon page */
    int32_t s32ItemCnt;   /* top-level items */
    tagPAGE_TURN_S stTurn;
    char acPageMsg[OSD_TEXT_LEN]; /* message of a popup, empty when there is none */
} tagPAGE_NODE_S;

/* The page stack, bottom first. */
typedef struct tagPAGE_MGR_S {
    tagPAGE_NODE_S astPage[OSD_PAGE_MAX];
    int32_t s32PageCnt; /* 0 to 5; 0 means that the menu is closed */
} tagPAGE_MGR_S;

extern OSD_API tagPAGE_MGR_S gstPageMgr;

#if UINTPTR_MAX == 0xFFFFFFFFFFFFFFFFu /* the binary interface is that of 64-bit machines */
static_assert(sizeof(tagITEM_NODE_S) == 2968, "item record");
static_assert(offsetof(tagITEM_NODE_S, enValType) == 296, "item record");
static_assert(offsetof(tagITEM_NODE_S, acValue) == 300, "item record");
static_assert(offsetof(tagITEM_NODE_S, s32Cur) == 316, "item record");
static_assert(offsetof(tagITEM_NODE_S, acValueKey) == 1324, "item record");
static_assert(offsetof(tagITEM_NODE_S, astSubList) == 2360, "item record");
static_assert(offsetof(tagITEM_NODE_S, stRect) == 2880, "item record");
static_assert(offsetof(tagITEM_NODE_S, stNode) == 2936, "item record");
static_assert(sizeof(tagPAGE_TURN_S) == 108, "page turn record");
static_assert(sizeof(tagPAGE_NODE_S) == 328, "page record");
static_assert(offsetof(tagPAGE_NODE_S, stItemList) == 160, "page record");
static_assert(offsetof(tagPAGE_NODE_S, stTurn) == 184, "page record");
static_assert(offsetof(tagPAGE_NODE_S, acPageMsg) == 292, "page record");
static_assert(offsetof(tagPAGE_MGR_S, s32PageCnt) == 1640, "page stack");
#endif

OSD_EXTERN_C_END
