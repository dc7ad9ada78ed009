// Translations: to a PO file and back, and a language of lengthened texts.
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <unistd.h>

#include "pages/check/check.h"
#include "pages/data/text_file.h"
#include "pages/texts/pseudo.h"
#include "pages/texts/translate.h"

/// The library that reads PO files forgets the name of each.
extern "C" const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions()  // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libgettextpo_xmalloc\n";
}

namespace {

namespace fs = std::filesystem;
using namespace pages;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const fs::path shipped = fs::path(OSD_SOURCE_DIR) / "resource";

/// A copy of some shipped pages and all texts that a test may change.
class TextsTest : public testing::Test {
protected:
    TextsTest()
    {
        fs::create_directories(root / "lang");
        fs::create_directories(root / "pages");
        for (const char* page : {"main", "lens"}) { // few, as the texts of all are drawn
            fs::copy(shipped / "pages" / (std::string(page) + "_page.xml"), root / "pages");
        }
        fs::create_directory_symlink(shipped / "pic", root / "pic");
        fs::copy(shipped / "settings.json", root / "settings.json");
        for (const auto& file : fs::directory_iterator(shipped / "lang")) {
            fs::copy(file, root / "lang");
        }
    }
    ~TextsTest() override { fs::remove_all(root.parent_path()); }

    ResourceFolder folder() const { return read_resource_folder(root); }
    fs::path file_of(const std::string& language) const { return root / "lang" / (language + ".json"); }

    Exported write(const std::string& language, bool update) const
    {
        ResourceFolder from = folder();
        return export_texts(from, language, po, update);
    }

    std::string exported(const std::string& language) const
    {
        fs::remove(po);
        (void)write(language, false);
        return read_text_file(po);
    }

    Imported import(const std::string& language) const
    {
        ResourceFolder into = folder();
        return import_texts(into, language, po);
    }

    /// Refusals without the PO file's folder.
    std::vector<std::string> refused(const std::string& language) const
    {
        std::vector<std::string> lines;
        for (const BadInput& refusal : import(language).refusals) {
            lines.push_back(std::string(refusal.what()).substr(po.parent_path().string().size() + 1));
        }
        return lines;
    }

    fs::path root = fs::path(testing::TempDir()) / ("texts" + std::to_string(::getpid())) / "folder";
    fs::path po = root.parent_path() / "po";
};

void replace(std::string& text, const std::string& old, const std::string& by)
{
    const std::size_t at = text.find(old);
    ASSERT_NE(at, text.npos) << old;
    text.replace(at, old.size(), by);
}

TEST_F(TextsTest, AreTheSameAfterTheWayToAPoFileAndBack)
{
    for (const std::string language : {"French", "TraditionalChinese"}) {
        const std::string old = read_text_file(file_of(language));
        const std::string first = exported(language);
        EXPECT_FALSE(import(language).changed) << language;
        fs::remove(file_of(language));
        EXPECT_TRUE(import(language).changed) << language;
        EXPECT_EQ(read_text_file(file_of(language)), old) << "order and groups are those of English.json";
        EXPECT_EQ(exported(language), first);
    }
}

TEST_F(TextsTest, KeepWhatTheirFileAllowsTheCheck)
{
    std::string texts = read_text_file(file_of("French"));
    (void)exported("French");
    replace(texts, "{\n", "{\n    \"osdmenu-pages\": {\"text-cut lens\":\"short enough\"},\n\n");
    replace(texts, "Objectif", "Optique");
    write_text_file(file_of("French"), texts);
    EXPECT_TRUE(import("French").changed);
    replace(texts, "Optique", "Objectif");
    EXPECT_EQ(read_text_file(file_of("French")), texts);
}

TEST_F(TextsTest, TellTranslatorsWhereTheyAreUsed)
{
    EXPECT_THAT(exported("French"),
                HasSubstr("#. title of page lens, label on page main\n"
                          "#. at most 31 bytes, and 240 pixels on page main at 1080p, where the English "
                          "has 74\n"
                          "#: pages/lens_page.xml:3 pages/main_page.xml:10\n"
                          "msgctxt \"lens\"\nmsgid \"Lens\"\nmsgstr \"Objectif\"\n"));
    const std::string po_text = exported("French");
    EXPECT_THAT(po_text, HasSubstr("\"Language: fr\\n\""));
    EXPECT_THAT(po_text, HasSubstr("#. shown by the menu itself\n"));
    EXPECT_THAT(po_text, HasSubstr("#. value of fact NdiStatus\n"));
    EXPECT_THAT(po_text, HasSubstr("#. nothing here uses it, but a camera may tell this key\n#. at most 31 bytes\n"
                                   "msgctxt \"NdiInactive\""));
}

TEST_F(TextsTest, OfANewLanguageAreEmptyAndTheAuthorHearsWhatToDo)
{
    EXPECT_EQ(write("Spanish", false).translated, 0U);
    EXPECT_THAT(left_to_do(folder(), "Spanish"),
                ElementsAre(HasSubstr("\"Spanish\": \"Spanish\""), HasSubstr("lang/English.json, lang/French.json")));
    EXPECT_THAT(left_to_do(folder(), "TraditionalChinese"), IsEmpty());
    EXPECT_THROW((void)write("Spanish", false), BadInput) << "may hold work";
    EXPECT_THROW((void)write("../Spanish", true), BadInput);
}

TEST_F(TextsTest, ThatWaitInAPoFileOutliveAnUpdate)
{
    std::string waiting = exported("French");
    replace(waiting, "#. title of page lens", "# Short, please.\n#. title of page lens");
    replace(waiting, "\"Objectif\"", "\"Optique\"");
    write_text_file(po, waiting);
    (void)write("French", true);
    EXPECT_EQ(read_text_file(po), waiting);

    replace(waiting, "Last-Translator: ", "X-Generator: an editor\\n\"\n\"Last-Translator: Ann");
    write_text_file(po, "# By Ann.\n" + waiting);
    (void)write("French", true);
    EXPECT_EQ(read_text_file(po), "# By Ann.\n" + waiting) << "the header is the translators'";

    std::string english = read_text_file(file_of("English"));
    replace(english, "\"Lens\"", "\"Optics\"");
    write_text_file(file_of("English"), english);
    const Exported updated = write("French", true);
    EXPECT_EQ(updated.translated, updated.texts - 1);
    const char* fuzzy = "#, fuzzy\n#| msgid \"Lens\"\nmsgctxt \"lens\"\nmsgid \"Optics\"\nmsgstr \"Optique\"\n";
    EXPECT_THAT(read_text_file(po), HasSubstr(fuzzy));
    EXPECT_THROW((void)write("German", true), BadInput) << "these are French";
}

TEST_F(TextsTest, ThatHaveNoEnglishAnyMoreWaitAsObsoleteUntilItIsBack)
{
    const std::string first = exported("French");
    const std::string english = read_text_file(file_of("English"));
    std::string shorter = english;
    replace(shorter, "\"Gain\": \"Gain\",", "");
    write_text_file(file_of("English"), shorter);
    for (const char* update : {"first", "second"}) {
        (void)write("French", true);
        EXPECT_THAT(read_text_file(po), HasSubstr("\n#~ msgctxt \"Gain\"\n#~ msgid \"Gain\"\n")) << update;
    }
    EXPECT_THAT(refused("French"), ElementsAre(HasSubstr("French.json"))) << "obsolete ones are nobody's text";
    write_text_file(file_of("English"), english);
    (void)write("French", true);
    EXPECT_EQ(read_text_file(po), first);
}

TEST_F(TextsTest, WithAByteOrderMarkHearTheRemedy)
{
    write_text_file(po, "\xEF\xBB\xBF" + exported("French"));
    EXPECT_THAT([&] { (void)import("French"); }, testing::ThrowsMessage<BadInput>(HasSubstr(
                                                     "po:1:1: the file begins with a byte order mark, expected")));
}

TEST_F(TextsTest, ThatDontFitAreRefused)
{
    const struct {
        const char* old;
        const char* by;
        const char* refusal;
    } rows[] = {
        {"\"Objectif\"", "\"\"", "po:44: 'lens' has no translation of 'Lens'"},
        {"\"Objectif\"", "\"  \"", "po:44: 'lens' has no translation of 'Lens'"},
        {"\"Objectif\"", "\"Éééééééééééééééé\"",
         "po:44: 'lens' is too long: 'Éééééééééééééééé' has 32 bytes (16 letters), at most 31 bytes fit"},
        {"\"Objectif\"", "\"Objectif de caméra\"",
         "po:44: 'lens' is 58 pixels too wide: 'Objectif de caméra' has 298 on page main (French, style 1, 1080p), "
         "240 fit"},
        {"\"Objectif\"", "\"Objec\\ntif\"",
         "po:44: 'lens' holds a line break or another control character, expected one line"},
        {"msgctxt \"lens\"", "#, fuzzy\nmsgctxt \"lens\"",
         "po:45: 'lens' is marked fuzzy, expected a look at the translation, and no mark"},
        {"msgid \"Lens\"", "msgid \"Glass\"",
         "po:44: 'lens' translates 'Glass', but English.json has 'Lens' now: export with --update"},
        {"msgctxt \"lens\"\nmsgid \"Lens\"\nmsgstr \"Objectif\"", "",
         "po: 'lens' is missing (Lens), expected an entry: export with --update"},
        {"\"Objectif\"\n", "\"Objectif\"\n\nmsgctxt \"lenz\"\nmsgid \"Lens\"\nmsgstr \"Objectif\"\n",
         "po:48: 'lenz' is no text of English.json, expected msgctxt with the key of one"},
        {"\"Objectif\"\n", "\"Objectif\"\n\nmsgctxt \"lens\"\nmsgid \"Lens\"\nmsgstr \"Objectif\"\n",
         "po:48: duplicate message definition: 'lens' has an entry above already"},
        {"\"Objectif\"", "\"Objecł\"",
         "po:44: font.ttf, bold_font.ttf, tcfont.ttf: no picture of 'ł' (U+0142), expected another character"},
        {"\"Objectif\"", "\"Objectif", "end-of-line within string"},
        {"X-Menu-Language: French", "X-Menu-Language: German", "po: the file is for German, expected French"},
        {"charset=UTF-8", "charset=FOO", "po: the header has the Content-Type 'text/plain; charset=FOO', expected"},
    };
    const std::string texts = read_text_file(file_of("French"));
    const std::string good = exported("French");
    for (const auto& row : rows) {
        std::string bad = good;
        replace(bad, row.old, row.by);
        write_text_file(po, bad);
        EXPECT_THAT(refused("French"), testing::Contains(HasSubstr(row.refusal))) << row.by;
        EXPECT_EQ(read_text_file(file_of("French")), texts) << row.by;
    }
}

TEST_F(TextsTest, ThatLoseTheNumberOfTheirPageAreRefused)
{
    fs::copy(shipped / "pages" / "system_page.xml", root / "pages");
    std::string bad = exported("French");
    replace(bad, "\"Système\"", "\"" + std::string(27, 'i') + "\"");
    write_text_file(po, bad);
    EXPECT_THAT(refused("French"),
                ElementsAre(HasSubstr("'system' is 1 byte too long with the number of page system")));
}

TEST_F(TextsTest, ThatDontFitAreRefusedAllAtOnce)
{
    std::string bad = exported("French");
    replace(bad, "\"Objectif\"", "\"\"");
    replace(bad, "msgid \"Gain\"", "msgid \"Loss\"");
    replace(bad, "\"Sortie vidéo\"", "\"La sortie de la vidéo\"");
    write_text_file(po, bad);
    std::string texts = read_text_file(file_of("French"));
    replace(texts, "{", "{\"Iso\": \"ISO\",");
    write_text_file(file_of("French"), texts);
    EXPECT_THAT(
        refused("French"),
        ElementsAre(HasSubstr("'lens'"), HasSubstr("'video' is"), HasSubstr("'Gain'"),
                    "folder/lang/French.json:1:2: 'Iso' is no text of English.json, expected it there or not at all"));
}

std::size_t letter_count(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

TEST_F(TextsTest, OfThePseudoLanguageAreLongerAndStillFit)
{
    EXPECT_EQ(pseudo_text("Image"), "[ÎÎmågë]");
    EXPECT_EQ(pseudo_text("1080p60"), "[1080p60~]");
    EXPECT_EQ(pseudo_text("繁體中文"), "[繁體中文]");
    EXPECT_EQ(pseudo_text("The longest text that there is."), "[The longest text that there i]");
    EXPECT_EQ(pseudo_text("十个字以内的菜单文本"), "[十个字以内的菜单文~~]") << "no letter is cut in two";
    const ResourceFolder all = folder();
    for (const auto& [key, text] : all.languages.at("English")) {
        const std::string pseudo = pseudo_text(text.text);
        const std::size_t letters = letter_count(text.text);
        EXPECT_LE(pseudo.size(), 31U) << pseudo;
        if (letters > 5 && letters < 22) {
            EXPECT_NEAR(static_cast<double>(letter_count(pseudo) - 1) / static_cast<double>(letters), 1.35, 0.1)
                << pseudo;
        }
    }
}

TEST_F(TextsTest, OfThePseudoLanguageAreChosenInACopyThatPassesTheCheck)
{
    const fs::path copy = root.parent_path() / "longer";
    const ResourceFolder original = read_resource_folder(shipped);
    write_pseudo(original, copy);
    const ResourceFolder with_pseudo = read_resource_folder(copy);
    for (const Finding& finding : check(with_pseudo, {false, {}}).findings) {
        ADD_FAILURE() << line_of(finding, copy);
    }
    EXPECT_EQ(option_of_language(with_pseudo.definitions, "Pseudo"), "Pseudo");
    EXPECT_EQ(with_pseudo.languages.at("Pseudo").at("lens").text, "[Lëñs]");
    EXPECT_EQ(with_pseudo.definitions.settings.at({"ImageParam", "Brightness"}).place.line,
              original.definitions.settings.at({"ImageParam", "Brightness"}).place.line);
    EXPECT_THROW(write_pseudo(original, copy), BadInput) << "nobody's files are overwritten";
    EXPECT_THROW(write_pseudo(with_pseudo, root.parent_path() / "again"), BadInput);
}

} // namespace
