// What lists and popups share. Each has its own fractions; what stands here is the same formula in all that use it.
#pragma once

#include <SDL_ttf.h>

#include "comm/guard.h"
#include "comm/widget.h"
#include "osd_records.h"

// Fractions of a list, of the menu's width W and height H.
struct tagROW_GEOM_S {
    float f32Left;        // of W, label of the first level, and of every level in styles other than 0
    float f32Indent;      // of W, a level, style 0 only
    float f32FirstGap;    // of H, above the first row
    float f32NextGap;     // of H, above every other row
    float f32MsgFoot;     // of H, where the message line ends
    float f32ValueFrame;  // of W, the value column has half of it
    float f32CaretPart;   // the caret of an edited address is this part of the gap between rows thick
    int s32DotCursor;     // an edit cursor behind this place stands one dot further right
    int s32EmptyAboveBtn; // rows that a CONFIRM_POP_BTN item leaves empty above itself
};

// Everything that one row needs, worked out once.
struct tagROW_S {
    tagITEM_NODE_S* pstItem;
    TTF_Font* pstFont; // of the value, and of the label unless it stands alone
    int s32Size;
    bool bBright;
    SDL_Rect stLabel; // place of the label, size of its text
};

// Text of a value, and its state on a bar.
struct tagROW_VALUE_S {
    OSD_TEXT acText;
    tagBAR_STATE_S stBar;
};

// Draws a row with its sub-items and moves the cursor of the draw to the last of them; false where the row has no text.
using OSD_ROW_FUNC = bool (*)(tagITEM_NODE_S*, SDL_Rect*, OSD_BOOL);

// A line of text drawn as an item: the title (TITLE_LINE) or the message line (MSG_LINE).
tagITEM_NODE_S osdRowOfText(const OSD_TEXT& acText, tagITEM_LEVEL_E enLevel, tagITEM_ATTR_E enAttr);

// Whether a selected item is bright: not while one of its sub-items holds the cursor.
bool osdRowBright(tagITEM_NODE_S* pstItem, OSD_BOOL bSelected);

// The font of a text that the skin may set off: bold for a selected one in style 1.
TTF_Font* osdRowSkinFont(OSD_BOOL bSelected);

// Sets the regular font to the size in the name of pcFunc; false with a line in the log.
bool osdRowSetSize(int s32Size, const char* pcFunc);

// The size of the item's label in the regular font, at 0, 0; empty where it can't be measured.
SDL_Rect osdRowMeasure(const tagITEM_NODE_S* pstItem);

// Places the label under the row above; the font stands at the row's size.
SDL_Rect osdRowLabel(const tagROW_GEOM_S& stGeom, const tagITEM_NODE_S* pstItem, const SDL_Rect& stAbove);

// Makes the surface of a value for its column; null when it is empty.
using OSD_VALUE_FUNC = OSD_SURFACE_PTR (*)(const tagROW_S& stRow, const tagROW_VALUE_S& stValue,
                                           const SDL_Rect& stColumn);

// The value as a bar or a text.
OSD_SURFACE_PTR osdRowValueSurface(const tagROW_S& stRow, const tagROW_VALUE_S& stValue, const SDL_Rect& stColumn);

// Draws the value column of the row, with the caret of an edited address.
void osdRowDrawValue(const tagROW_GEOM_S& stGeom, const tagROW_S& stRow, OSD_VALUE_FUNC pfnSurface);

// The text of a value with what a widget needs of its row.
inline tagWIDGET_TEXT_S osdRowWidget(const tagROW_S& stRow, const tagROW_VALUE_S& stValue)
{
    return {stRow.pstFont, stValue.acText, stRow.s32Size, stRow.bBright};
}

// Blits the whole of a surface onto the canvas; a null surface draws nothing.
void osdRowPut(SDL_Surface* pstSrc, const SDL_Rect& stDst);

// The row of the vertical and the Tolvane list, whose label and value are of one size. The first sets both fonts to it and
// places the label; false where it can't. The second draws label and value and moves the cursor of the draw to the row;
// false without a label. Both say a failure in the name of pcFunc.
bool osdRowPlace(const tagROW_GEOM_S& stGeom, const SDL_Rect& stAbove, const char* pcFunc, tagROW_S* pstRow);
bool osdRowDraw(const tagROW_GEOM_S& stGeom, const tagROW_S& stRow, OSD_SURFACE_PTR pstLabel, const char* pcFunc,
                SDL_Rect* pstLayoutCursor);

// Moves the cursor of the draw to the row.
void osdRowEnd(const SDL_Rect& stLabel, SDL_Rect* pstLayoutCursor);

// Draws the sub-items that show. One that fails leaves its place to the next.
void osdRowSubItems(tagITEM_NODE_S* pstItem, SDL_Rect* pstLayoutCursor, OSD_ROW_FUNC pfnDraw);
