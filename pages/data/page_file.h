// A page file as its author wrote it, with the place of each part.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "pages/data/errors.h"

namespace pages {

struct Attribute {
    std::string name;
    std::string value;
    Place place;
};

struct Comment {
    std::string text;
    Place place;
};

struct Element {
    std::string name;
    Place place;
    int last_line = 0; ///< on which it ends
    const Element* parent = nullptr;
    std::vector<Attribute> attributes;
    std::vector<std::unique_ptr<Element>> children;
    std::vector<Place> texts; ///< letters between the elements, which the menu doesn't read

    const Attribute* find(std::string_view attribute) const;
    /// Empty when it is absent.
    std::string value(std::string_view attribute) const;
    /// Where the attribute stands, or the element without it.
    const Place& place_of(std::string_view attribute) const;
};

struct PageFile {
    std::string name; ///< of the page
    std::string file; ///< below the folder of the resources
    std::string text;
    std::unique_ptr<Element> root; ///< null for a file that is not well formed
    std::vector<Comment> comments;
};

/// "pages" where page files are written, "menu" where they are staged, below a folder of resources.
std::filesystem::path page_folder(const std::filesystem::path& resources);
bool is_page_file(const std::filesystem::path& path);
/// The name of the page in a page file.
std::string page_name(const std::filesystem::path& path);

/// Takes a text apart. A mistake in it is added, and the page has no root then.
PageFile read_page(const std::filesystem::path& path, const std::string& text, std::vector<BadInput>& mistakes);

/// Calls visit(element) for the element and all below it, in their order.
template <typename Visit>
void for_each_element(const Element& element, Visit&& visit)
{
    visit(element);
    for (const auto& child : element.children) {
        for_each_element(*child, visit);
    }
}

} // namespace pages
