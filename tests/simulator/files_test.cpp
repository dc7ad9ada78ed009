// Settings definitions and translations: in which words what can't be used is refused.
#include <gmock/gmock.h>

#include "simulator/core/definitions.h"
#include "simulator/core/errors.h"
#include "simulator/core/translations.h"
#include "tests/simulator/temp_folder.h"

using namespace sim;
using testing::AllOf;
using testing::HasSubstr;

TEST(Definitions, RefuseMistakesInWords)
{
    const auto setting = [](const std::string& fields) { return definitions_with(R"({"key": "A", )" + fields + "}"); };
    std::string long_list; // 18 options of 15 bytes and 17 colons make 287 bytes
    for (int i = 10; i < 28; ++i) {
        long_list += (i == 10 ? "\"" : ", \"") + std::string(13, 'x') + std::to_string(i) + "\"";
    }
    struct Case {
        std::string text;
        const char* words;
    };
    const Case cases[] = {
        {"{\n\"languages\": {},\n oops}", ":3: syntax error"},
        {R"({"a": 1, "a": 2})", "'a' stands twice"},
        {definitions_with("", R"({"Image": "Nowhere"})"), "no setting has the parent 'Nowhere'"},
        {definitions_with(R"({"kind": "text", "default": ""})"), "a setting: 'key' is missing"},
        {definitions_with(R"({"key": "Language", "kind": "text", "default": ""})"), "'Language' is defined twice"},
        {setting(R"("kind": "number", "default": "")"), "setting 'A': unknown kind 'number'"},
        {setting(R"("kind": "text", "default": "", "min": 0)"), "setting 'A': unknown field 'min'"},
        {setting(R"("kind": "text", "default": "1234567890123456")"), "has 16 bytes, expected 0 to 15"},
        {setting(R"("kind": "integer", "min": 5, "max": 5, "step": 1, "default": 5)"), "'min' below 'max'"},
        {setting(R"("kind": "integer", "min": 0, "max": 5, "step": 1, "default": 6)"), "no whole number from 0 to 5"},
        {setting(R"("kind": "integer", "min": 0, "max": 3000000000, "step": 1, "default": 6)"),
         "'max' must be a whole"},
        {setting(R"("kind": "option", "options": ["x", "x"], "default": "x")"), "'x' stands twice"},
        {setting(R"("kind": "option", "options": ["a:b"], "default": "a:b")"), "no ':'"},
        {setting(R"("kind": "option", "options": ["x", "y"], "default": "z")"), "'z' is none of x, y"},
        {setting(R"("kind": "option", "options": [)" + long_list + R"(], "default": "x")"), "at most 271 bytes"},
        {setting(R"("kind": "color", "default": "-12345")"), "six hexadecimal digits"},
    };
    const TempFolder folder;
    for (const Case& test : cases) {
        const auto load = [&] { (void)load_definitions(folder.write("settings.json", test.text)); };
        EXPECT_THAT(error_of<BadInput>(load), AllOf(HasSubstr("settings.json"), HasSubstr(test.words))) << test.text;
    }
}

TEST(Translations, RefuseTextsThatDontFit)
{
    const TempFolder folder;
    folder.write("German.json", R"({"On": "Ein", "Title": "Bildeinstellungen: Helligkeit 1"})"); // 31 bytes
    const auto load = [&] { return Translations(folder.path(), {{"German", "German"}}); };
    EXPECT_EQ(*load().find("German", "On"), "Ein");
    EXPECT_EQ(load().find("German", "Off"), nullptr);
    EXPECT_EQ(load().find("French", "On"), nullptr);
    folder.write("German.json", R"({"Title": "Bildeinstellungen: Helligkeit 12"})");
    EXPECT_THAT(error_of<BadInput>(load), AllOf(HasSubstr("German.json"), HasSubstr("'Title' has 32 bytes")));
}
