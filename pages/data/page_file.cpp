#include "pages/data/page_file.h"

#include <algorithm>
#include <expat.h>
#include <optional>
#include <system_error>
#include <utility>

#include "pages/data/text_file.h"
#include "pages/data/xml_slip.h"

namespace pages {
namespace {

constexpr std::string_view ending = "_page.xml";
constexpr std::string_view white_space = " \t\r\n";

/// What to do about the mistakes that are made most.
struct Remedy {
    XML_Error error;
    const char* expected;
};
constexpr Remedy remedies[] = {
    {XML_ERROR_UNCLOSED_TOKEN, "the end of what begins here"},
    {XML_ERROR_DUPLICATE_ATTRIBUTE, "each attribute once"},
    {XML_ERROR_NO_ELEMENTS, "an element <Page>"},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, "one element <Page> around all others"},
    {XML_ERROR_UNDEFINED_ENTITY, "a letter, or one of &amp; &lt; &gt; &quot; &apos;"},
    {XML_ERROR_XML_DECL, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"},
    {XML_ERROR_MISPLACED_XML_PI, "<?xml ...?> at the begin of the file"},
};

/// Follows the parser and builds the elements.
class Builder {
public:
    explicit Builder(PageFile& page) : page_(page), parser_(XML_ParserCreate(nullptr), XML_ParserFree)
    {
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), start, end);
        XML_SetCharacterDataHandler(parser_.get(), text);
        XML_SetCommentHandler(parser_.get(), comment);
        XML_SetStartDoctypeDeclHandler(parser_.get(), doctype);
    }

    /// Throws BadInput for a text that is not well formed.
    void build()
    {
        const std::string& words = page_.text;
        const bool whole =
            XML_Parse(parser_.get(), words.data(), static_cast<int>(words.size()), XML_TRUE) == XML_STATUS_OK;
        if (declares_) {
            throw BadInput(*declares_, "the menu doesn't read what a DOCTYPE declares, expected no [ ... ] in it");
        }
        if (!whole) {
            const XML_Error error = XML_GetErrorCode(parser_.get());
            const std::string open =
                lacks_end(error) ? " (<" + open_->name + "> is open since " + place_words() + ")" : "";
            throw BadInput(here(), XML_ErrorString(error) + open + remedy(error));
        }
    }

private:
    static Builder& of(void* data) { return *static_cast<Builder*>(data); }
    static void start(void* data, const char* name, const char** attributes) { of(data).open(name, attributes); }
    static void end(void* data, const char* /*name*/) { of(data).close(); }
    static void text(void* data, const char* letters, int count)
    {
        of(data).add_text({letters, static_cast<std::size_t>(count)});
    }
    static void comment(void* data, const char* words)
    {
        Builder& builder = of(data);
        builder.page_.comments.push_back({words, builder.here()});
    }
    static void doctype(void* data, const char* /*name*/, const char* /*system*/, const char* /*external*/,
                        int declares)
    {
        Builder& builder = of(data);
        if (declares != 0) {
            builder.declares_ = builder.here();
            (void)XML_StopParser(builder.parser_.get(), XML_FALSE); // what can be stopped is: it is being read
        }
    }

    bool lacks_end(XML_Error error) const
    {
        return open_ != nullptr && (error == XML_ERROR_TAG_MISMATCH || error == XML_ERROR_NO_ELEMENTS);
    }

    std::string remedy(XML_Error error) const
    {
        if (lacks_end(error)) {
            return ", expected </" + open_->name + ">";
        }
        if (error == XML_ERROR_INVALID_TOKEN || error == XML_ERROR_SYNTAX) {
            const auto at = static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get()));
            return std::string(", expected ") + expected_in_xml(page_.text, at);
        }
        for (const Remedy& row : remedies) {
            if (row.error == error) {
                return std::string(", expected ") + row.expected;
            }
        }
        return "";
    }

    Place here() const
    {
        return {page_.file, static_cast<int>(XML_GetCurrentLineNumber(parser_.get())),
                static_cast<int>(XML_GetCurrentColumnNumber(parser_.get())) + 1};
    }

    std::string place_words() const { return "line " + std::to_string(open_->place.line); }

    void open(const char* name, const char** attributes)
    {
        auto element = std::make_unique<Element>();
        element->name = name;
        element->place = here();
        element->parent = open_;
        for (; *attributes != nullptr; attributes += 2) {
            element->attributes.push_back({attributes[0], attributes[1], {}});
        }
        find_places(*element);
        Element* opened = element.get();
        (open_ == nullptr ? page_.root : open_->children.emplace_back()) = std::move(element);
        open_ = opened;
    }

    void close()
    {
        open_->last_line = here().line;
        open_ = const_cast<Element*>(open_->parent);
    }

    /// A text may come in pieces; its first letter tells where it is.
    void add_text(std::string_view letters)
    {
        if (letters.find_first_not_of(white_space) != letters.npos) {
            open_->texts.push_back(here());
        }
    }

    /// The parser tells the place of a start tag, not of its attributes: they stand there in the same order.
    void find_places(Element& element) const
    {
        const std::string& words = page_.text;
        auto at = static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get())) + 1 + element.name.size();
        for (Attribute& attribute : element.attributes) {
            at = std::min(words.find_first_not_of(white_space, at), words.size());
            attribute.place = place_at(at, element.place);
            const std::size_t quote = words.find_first_of("\"'", at);
            const std::size_t close = quote == words.npos ? quote : words.find(words[quote], quote + 1);
            at = close == words.npos ? words.size() : close + 1;
        }
    }

    Place place_at(std::size_t at, const Place& tag) const
    {
        const std::string& words = page_.text;
        const auto begin = static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get()));
        const auto lines = std::count(words.begin() + static_cast<std::ptrdiff_t>(begin),
                                      words.begin() + static_cast<std::ptrdiff_t>(at), '\n');
        const int column =
            lines == 0 ? tag.column + static_cast<int>(at - begin) : static_cast<int>(at - words.rfind('\n', at - 1));
        return {tag.file, tag.line + static_cast<int>(lines), column};
    }

    PageFile& page_;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
    Element* open_ = nullptr;
    std::optional<Place> declares_; ///< of a DOCTYPE with declarations
};

} // namespace

const Attribute* Element::find(std::string_view attribute) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [attribute](const Attribute& one) { return one.name == attribute; });
    return found == attributes.end() ? nullptr : &*found;
}

std::string Element::value(std::string_view attribute) const
{
    const Attribute* found = find(attribute);
    return found == nullptr ? "" : found->value;
}

const Place& Element::place_of(std::string_view attribute) const
{
    const Attribute* found = find(attribute);
    return found == nullptr ? place : found->place;
}

std::filesystem::path page_folder(const std::filesystem::path& resources)
{
    const std::filesystem::path written = resources / "pages";
    std::error_code ignored; // what can't be looked at isn't there
    return std::filesystem::is_directory(written, ignored) ? written : resources / "menu";
}

bool is_page_file(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    return !is_of_editor(path) && name.size() > ending.size() &&
           name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

std::string page_name(const std::filesystem::path& path)
{
    const std::string file = path.filename().string();
    return file.substr(0, file.size() - (is_page_file(path) ? ending.size() : 0));
}

PageFile read_page(const std::filesystem::path& path, const std::string& text, std::vector<BadInput>& mistakes)
{
    PageFile page{page_name(path), path.string(), text, nullptr, {}};
    try {
        Builder(page).build();
    } catch (const BadInput& mistake) {
        mistakes.push_back(mistake);
        page.root.reset();
    }
    return page;
}

} // namespace pages
