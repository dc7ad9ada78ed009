// What all fakes share: one log of calls, and the calls that are to fail.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace fake {

struct Calls {
    bool recording = false;                             // off: everything passes through to the real functions
    std::vector<std::string> lines;                     // readable calls, in order
    std::map<std::string, int> counts;                  // calls by name
    std::map<std::string, std::pair<int, int>> failing; // first and last call of a name that fail
    std::set<std::string> missingFiles;                 // base names that can't be opened
    bool fakeFonts = true;                              // of one size, instead of SDL_ttf
    int byteWidth = 20, lineHeight = 30;                // of the fake fonts
    bool fakePictures = true;                           // plain pictures instead of files
    int pictureSize = 100;                              // width and height of the fake pictures
    std::string lastFile;                               // base name of the font file opened last
    std::map<const void*, std::string> surfaces;        // alive, with their descriptions
    struct Font {
        std::string name;
        int size;
    };
    std::map<const void*, Font> fonts; // alive
};

Calls& calls();

// Counts a call and says whether it is to fail.
bool fails(const std::string& name);
// Lets the n-th call from now on fail, and the ones behind it up to the last.
void failCall(const std::string& name, int n = 1, int last = 0);

void record(const std::string& line);
std::string format(const char* pattern, ...) __attribute__((format(printf, 1, 2)));
std::string baseName(const std::string& path);

// The recorded lines that begin with one of the words.
std::vector<std::string> linesOf(const std::vector<std::string>& words);

// Regular expressions take long to compile, so they stand in one file. All matches replaced, "$1" for the first group;
// and the groups of a match with the whole text, none without one.
std::string replaced(const std::string& text, const std::string& pattern, const std::string& with);
std::vector<std::string> matched(const std::string& text, const std::string& pattern);

// What a function prints; function names and source lines read "F" and "L".
std::string printed(const std::function<void()>& function);

// Items alive on the heap; "calloc" names their allocation.
int liveItems();
// The first option's text of the item released last.
const char* releasedText();

} // namespace fake
