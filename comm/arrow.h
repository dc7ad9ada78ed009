// Small pictures beside an item, drawn straight onto a surface. A picture that can't be had gives false, with a line in
// the log.
#pragma once

#include <SDL.h>

// Where the arrow that marks an item stands: to the left of stItemRect, but not left of stMenuRect.
SDL_Rect osdArrowBeside(const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect);

// The arrow there; the page-turn arrow in the bottom right corner; the arrow of an item that opens a page, behind it.
bool osdArrowMark(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect);
bool osdArrowTurn(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const char* pcPicName);
bool osdArrowEnter(SDL_Surface* pstDst, const SDL_Rect& stMenuRect, const SDL_Rect& stItemRect, bool bBright);

// A button's picture at the pen, which moves behind it.
bool osdArrowButton(SDL_Surface* pstDst, SDL_Rect* pstPos, const SDL_Rect& stMenuRect, bool bBright,
                    const char* pcPicName);
