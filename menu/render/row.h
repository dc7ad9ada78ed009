// What the three lists share. Each list has its own fractions; what stands here is the same formula in all that use it.
#pragma once

#include <SDL_ttf.h>

#include "comm/guard.h"
#include "osd_records.h"

// Fractions of a list, of the menu's width W and height H.
struct tagROW_GEOM_S {
    float f32Left;        // of W, label of the first level, and of every level in styles other than 0
    float f32Indent;      // of W, a level, style 0 only
    float f32FirstGap;    // of H, above the first row
    float f32NextGap;     // of H, above every other row
    float f32MsgFoot;     // of H, where the message line ends
    float f32ValueFrame;  // of W, the value column has half of it
    int s32EmptyAboveBtn; // rows that a CONFIRM_POP_BTN item leaves empty above itself
};

// Everything that one row needs, worked out once.
struct tagROW_S {
    tagITEM_NODE_S* pstItem;
    TTF_Font* pstFont; // of the value, and of the label unless it stands alone
    int s32Size;
    OSD_BOOL bBright;
    SDL_Rect stLabel; // place of the label, size of its text
};

// Text of a value, and its state on a bar.
struct tagROW_VALUE_S {
    char acText[OSD_TEXT_LEN];
    int s32Pos;
    int s32Cnt;
};

using OSD_ROW_FUNC = int (*)(tagITEM_NODE_S*, SDL_Rect*, OSD_BOOL);

// A line of text drawn as an item: the title (TITLE_LINE) or the message line (MSG_LINE).
tagITEM_NODE_S osdRowOfText(const char (&acText)[OSD_TEXT_LEN], tagITEM_LEVEL_E enLevel, tagITEM_ATTR_E enAttr);

// Whether a selected item is bright: not while one of its sub-items holds the cursor.
OSD_BOOL osdRowBright(tagITEM_NODE_S* pstItem, OSD_BOOL bSelected);

// Sets both fonts of the menu to the size. Returns 0, or -1 when the bold font refuses.
int osdRowSetSize(int s32Size);

// Places the label under the row above; the font stands at the row's size.
SDL_Rect osdRowLabel(const tagROW_GEOM_S& stGeom, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove);

// The value column on the row of the label.
SDL_Rect osdRowColumn(const tagROW_GEOM_S& stGeom, const SDL_Rect& stLabel);

tagROW_VALUE_S osdRowValue(tagITEM_NODE_S* pstItem);

// The value as a bar or a text; null when it is empty.
OSD_SURFACE_PTR osdRowValueSurface(const tagROW_S& stRow, tagROW_VALUE_S stValue, const SDL_Rect& stColumn);

// Left edge and width of the bar under the character that is being edited; y and h are the list's.
SDL_Rect osdRowCaret(const tagITEM_NODE_S* pstItem, const tagROW_VALUE_S& stValue, const SDL_Rect& stColumn);

// The caret of the two older lists: a third of the gap between rows, as far below the row.
void osdRowCaretDraw(SDL_Rect stCaret, const SDL_Rect& stColumn, float f32NextGap);

// The width of a text in the regular font; 0 where it can't be measured.
int osdRowTextWidth(const char* pcText);

// Moves the cursor of the draw to the row.
void osdRowEnd(const SDL_Rect& stLabel, SDL_Rect* pstLayoutCursor);

// Draws the sub-items that show. One that fails leaves its place to the next.
void osdRowSubItems(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_ROW_FUNC pfnDraw);
