// The words of a page file and what they mean. The parser, the tests and the page tools read the same tables.
#pragma once

#include <cstddef>

#include "comm/text.h"
#include "osd_records.h"

template <typename E>
struct tagKEYWORD_S {
    const char* pcWord;
    E enValue;
};

inline constexpr tagKEYWORD_S<tagPAGE_LAYOUT_E> c_astLayoutWord[] = {
    {"icon", PAGE_LAYOUT_ICON},
    {"vertical_align", PAGE_LAYOUT_VERTICAL},
    {"horizontal_align", PAGE_LAYOUT_HORIZONTAL},
    {"vertical_tolvane_align", PAGE_LAYOUT_VERTICAL_TOLVANE},
    {"vertical_align_keth", PAGE_LAYOUT_VERTICAL_KETH},
    {"horizontal_align_keth", PAGE_LAYOUT_HORIZONTAL_KETH}};

inline constexpr tagKEYWORD_S<tagPAGE_TITLE_POS_E> c_astTitlePosWord[] = {
    {"Left", PAGE_TITLE_LEFT}, {"Right", PAGE_TITLE_RIGHT}, {"Center", PAGE_TITLE_CENTER}};

inline constexpr tagKEYWORD_S<tagITEM_CTX_E> c_astCtxWord[] = {{"ICON", ICON},
                                                               {"ICON_TXT", ICON_TXT},
                                                               {"ICON_TXT_KETH", ICON_TXT_KETH},
                                                               {"NAME", NAME},
                                                               {"NAME_BAR_VAL", NAME_BAR_VAL},
                                                               {"NAME_VAL", NAME_VAL},
                                                               {"NAME_IP_VAL", NAME_IP_VAL}};

inline constexpr tagKEYWORD_S<tagITEM_ATTR_E> c_astAttrWord[] = {{"CONST_TXT", CONST_TXT},
                                                                 {"STATUS", STATUS},
                                                                 {"KEY_WITH_MSG", KEY_WITH_MSG},
                                                                 {"COMMON", COMMON},
                                                                 {"EDITABLE", EDITABLE},
                                                                 {"CONFIRM", CONFIRM},
                                                                 {"CONFIRM_POP", CONFIRM_POP},
                                                                 {"CONFIRM_POP_BTN", CONFIRM_POP_BTN},
                                                                 {"SUBITEM", SUBITEM},
                                                                 {"SUBPAGE", SUBPAGE},
                                                                 {"MSG_WITH_SUBITEM", MSG_WITH_SUBITEM}};

inline constexpr tagKEYWORD_S<tagITEM_VAL_TYPE_E> c_astValTypeWord[] = {
    {"NUMERICAL", NUMERICAL}, {"OPTTXT", OPTTXT}, {"EDITTXT", EDITTXT}};

inline constexpr tagKEYWORD_S<tagITEM_PIC_TYPE_E> c_astPicTypeWord[] = {
    {"MAINTYPE", MAINTYPE}, {"SUBTYPE", SUBTYPE}, {"IPTYPE", IPTYPE}, {"CONFIRMTYPE", CONFIRMTYPE}};

inline constexpr tagKEYWORD_S<tagITEM_POS_E> c_astItemPosWord[] = {{"Center", ITEM_POS_CENTER}};

// Exact match; false leaves *penValue as it was.
template <typename E, size_t N>
bool osdKeywordFind(const tagKEYWORD_S<E> (&astWord)[N], const char* pcWord, E* penValue)
{
    for (const tagKEYWORD_S<E>& stWord : astWord) {
        if (osdTextEqual(stWord.pcWord, pcWord)) {
            *penValue = stWord.enValue;
            return true;
        }
    }
    return false;
}
