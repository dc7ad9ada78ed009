// Measured pages: what is recorded is what is drawn, and what doesn't fit is told once, with the right pixels.
#include "pages/measure/measure.h"

#include <SDL_ttf.h>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <memory>

#include "pages/check/check.h"
#include "pages/measure/recorder.h"

namespace {

using namespace pages;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

const std::string font_folder = OSD_RESOURCE_DIR "/ttf";

ResourceFolder shipped() { return read_resource_folder(OSD_SHIPPED_DIR, font_folder); }

/// The shipped folder with a page of its own and English alone.
ResourceFolder folder_with(const std::string& page, const std::map<std::string, std::string>& texts)
{
    ResourceFolder folder = shipped();
    folder.languages.erase(folder.languages.begin(), folder.languages.find("English"));
    folder.languages.erase(std::next(folder.languages.find("English")), folder.languages.end());
    for (const auto& [key, text] : texts) {
        folder.languages["English"][key] = {text, {"lang/English.json", 1, 1}};
    }
    folder.pages.clear();
    PageFile file = read_page("pages/own_page.xml", page, folder.mistakes);
    EXPECT_NE(file.root, nullptr);
    folder.pages.emplace(file.name, std::move(file));
    return folder;
}

std::vector<std::string> words_of(const std::vector<Finding>& findings)
{
    std::vector<std::string> words;
    for (const Finding& finding : findings) {
        words.push_back(std::to_string(finding.place.line) + " " + finding.rule + ": " + pages::words_of(finding));
    }
    return words;
}

/// The regular font, asked without the menu.
class Font {
public:
    explicit Font(int size) : font_((TTF_Init(), TTF_OpenFont((font_folder + "/font.ttf").c_str(), size))) {}
    ~Font() { TTF_CloseFont(font_); }
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    int width_of(const std::string& text) const
    {
        int width = 0;
        EXPECT_EQ(TTF_SizeUTF8(font_, text.c_str(), &width, nullptr), 0);
        return width;
    }

private:
    TTF_Font* font_;
};

int width_of(int size, const std::string& text) { return Font(size).width_of(text); }

/// A text of exactly that width.
std::string text_of_width(int size, int width)
{
    const Font font(size);
    for (std::size_t wide = 0; wide < 20; ++wide) {
        for (std::size_t thin = 0; wide + thin < 32; ++thin) {
            const std::string text = std::string(wide, 'W') + std::string(thin, 'i');
            for (const char* end : {"", "n", "t", "nn", "nt", "tt"}) {
                if (text.size() < 30 && font.width_of(text + end) == width) {
                    return text + end;
                }
            }
        }
    }
    ADD_FAILURE() << "no text is " << width << " pixels wide";
    return "";
}

// Whatever a drawn page has beside its background lies in a mark, and each mark of a text begins and ends with ink.
TEST(Recorder, MarksWhatIsDrawn)
{
    const ResourceFolder folder = shipped();
    Menu menu(folder, View{"German", 1, false});
    Recorder recorder;
    for (const char* name : {"main", "network", "tally", "rotate", "confirm_pip", "confirm_network", "system3"}) {
        SCOPED_TRACE(name);
        const bool other = std::string(name) == "rotate"; // whose language has a font of its own
        const int side = other ? 32 : 8;                  // letters are narrower than their advance
        menu.look({other ? "TraditionalChinese" : "German", 1, other});
        ASSERT_TRUE(menu.open(name));
        const std::vector<Mark> marks = recorder.draw(menu);
        const SDL_Surface* picture = menu.draw();
        const auto pixel = [&](int x, int y) {
            const auto* row = static_cast<const std::uint8_t*>(picture->pixels) + y * picture->pitch;
            return reinterpret_cast<const std::uint32_t*>(row)[x];
        };
        const SDL_Rect& page = marks.front().rect;
        const std::uint32_t background = pixel(page.x + page.w - 6, page.y + page.h - 6 - page.h / 10);
        std::vector<bool> marked(static_cast<std::size_t>(picture->w * picture->h));
        const auto has_ink = [&](const SDL_Rect& rect) {
            for (int y = rect.y; y < rect.y + rect.h; ++y) {
                for (int x = rect.x; x < rect.x + rect.w; ++x) {
                    if (pixel(x, y) != background) {
                        return true;
                    }
                }
            }
            return false;
        };
        for (std::size_t i = 1; i < marks.size(); ++i) {
            const Mark& mark = marks[i];
            for (int y = mark.seen.y; y < bottom_of(mark.seen); ++y) {
                for (int x = mark.seen.x; x < right_of(mark.seen); ++x) {
                    marked[static_cast<std::size_t>(y * picture->w + x)] = true;
                }
            }
            if (mark.kind == MarkKind::Text) {
                const SDL_Rect& ink = mark.ink;
                EXPECT_TRUE(has_ink({ink.x, ink.y, ink.w, 2}) && has_ink({ink.x, bottom_of(ink) - 2, ink.w, 2}) &&
                            has_ink({ink.x, ink.y, side, ink.h}) && has_ink({right_of(ink) - side, ink.y, side, ink.h}))
                    << mark.name;
            }
        }
        int beside = 0;
        for (int y = page.y; y < bottom_of(page); ++y) {
            for (int x = page.x; x < right_of(page); ++x) {
                beside += pixel(x, y) != background && !marked[static_cast<std::size_t>(y * picture->w + x)] ? 1 : 0;
            }
        }
        EXPECT_EQ(beside, 0);
    }
}

// Column of values at 912 - 427 = 485, label of a titled page at 19, 28 pixels high: 466 remain. Other styles have smaller
// labels, 4k has the room twice and the size once and a half.
TEST(Measure, LabelOnePixelTooLong)
{
    const std::string page = "<Page Layout='vertical_align' Title='image' TitlePos='Left'>\n"
                             "<Item ItemIndex='Mirror' Ctx='NAME_VAL' Attr='COMMON' DataZone='Image'/>\n</Page>";
    const std::string fits = text_of_width(28, 466);
    const std::string runs = text_of_width(28, 467);
    EXPECT_THAT(measure(folder_with(page, {{"Mirror", fits}}), {}).findings, SizeIs(0));
    EXPECT_THAT(words_of(measure(folder_with(page, {{"Mirror", runs}}), {}).findings),
                ElementsAre("1 text-cut: the label '" + runs +
                            "' is 1 pixel too wide on page own (style 0, 1080p), expected at most 466 at 1080p"));
    for (const TextRoom& room : text_rooms(folder_with(page, {{"Mirror", runs}}), "English")) {
        EXPECT_EQ(room.fits(), room.key != "Mirror");
    }
}

struct Misfit {
    const char* name;
    std::string page;
    std::map<std::string, std::string> texts;
    std::vector<std::string> findings;
};

class MisfitTest : public testing::TestWithParam<Misfit> {};

TEST_P(MisfitTest, IsToldOnce)
{
    const auto found = words_of(measure(folder_with(GetParam().page, GetParam().texts), {}).findings);
    ASSERT_THAT(found, SizeIs(GetParam().findings.size()));
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_THAT(found[i], HasSubstr(GetParam().findings[i]));
    }
}

const std::string long_word = "Weißabgleichsautomatik";

/// As many rows as asked for, below a title; each has a label of its own.
std::string rows(const std::string& layout, int count)
{
    std::string page = "<Page Layout='" + layout + "' Title='image' TitlePos='Left'>\n";
    for (int i = 0; i < count; ++i) {
        page += "<Item ItemIndex='image' Ctx='NAME' Attr='CONST_TXT'/>\n";
    }
    return page + "</Page>";
}

INSTANTIATE_TEST_SUITE_P(
    , MisfitTest,
    testing::Values(
        // the widget is 403 wide: text at 44, the right arrow 36 wide at 52.39 behind the text
        Misfit{"ValueLosesItsArrow",
               "<Page Layout='vertical_align_keth'>\n<Item ItemIndex='Mirror' Ctx='NAME_VAL' Attr='COMMON' "
               "DataZone='Image'/>\n</Page>",
               {{"On", long_word}},
               {"1 text-cut: the value '" + long_word + "' is " +
                std::to_string(width_of(28, long_word) + 52 + 36 - 403) +
                " pixels too wide on page own (1080p), expected at most 315 at 1080p"}},
        // 240 pixels without the frame of 5
        Misfit{"PopupIsTooNarrow",
               "<Page Layout='horizontal_align' Title='image' TitlePos='Center'>\n<Item ItemCnt='2' "
               "ItemIndexOnLine='0' ItemIndex='No' Ctx='NAME' Attr='CONFIRM'/>\n<Item ItemCnt='2' ItemIndexOnLine='1' "
               "ItemIndex='Yes' Ctx='NAME' Attr='CONFIRM'/>\n</Page>",
               {{"image", long_word}},
               {"1 text-cut: the title '" + long_word + "' is " + std::to_string(width_of(32, long_word) - 230) +
                " pixels too wide on page own, expected at most 230"}},
        // rows of 46 + 21 pixels from 10 on, the rule at 972; at 4k rows of 139 + 43, the rule at 1944
        Misfit{"RowsFitAt1080pAlone",
               rows("vertical_tolvane_align", 10),
               {},
               {"11 below-foot: 1 row reaches into the hints or the message line, from 'Image' on"}},
        Misfit{"RowsBelowTheMenu", rows("vertical_align", 18), {}, {"below-foot: "}},
        Misfit{"PictureOverTheNextRow",
               "<Page Layout='vertical_align_keth'>\n<Item ItemIndex='Restart' Ctx='NAME' Attr='CONFIRM_POP_BTN' "
               "ConfirmPage='confirm_restart'/>\n<Item ItemIndex='Mirror' Ctx='NAME_VAL' Attr='COMMON' "
               "DataZone='Image'/>\n</Page>",
               {},
               {"3 text-overlap: the label 'Mirror' lies over the picture 'restart', by "}},
        Misfit{"LetterWithoutPicture",
               rows("vertical_align", 1),
               {{"image", "Ekşi"}},
               {"1 missing-glyph: font.ttf, bold_font.ttf, tcfont.ttf: no picture of 'ş' (U+015F)"}}),
    [](const auto& test) { return test.param.name; });

TEST(Measure, ShippedPagesFit) { EXPECT_THAT(words_of(measure(shipped(), {}).findings), ElementsAre()); }

TEST(Measure, CheckMeasuresTheChosenPages)
{
    ResourceFolder folder = folder_with(rows("vertical_align", 18), {});
    const auto only = [](const char* name) {
        return [=](const PageFile& page, const std::string&) { return page.name == name; };
    };
    const auto count = [&](const CheckOptions& options) {
        const std::vector<Finding> findings = check(folder, options).findings;
        return std::count_if(findings.begin(), findings.end(),
                             [](const Finding& finding) { return finding.rule == "below-foot"; });
    };
    EXPECT_EQ(count({true, {}}), 1);
    EXPECT_EQ(count({true, only("own")}), 1);
    EXPECT_EQ(count({true, only("other")}), 0);
    EXPECT_EQ(count({false, {}}), 0);
}

} // namespace
