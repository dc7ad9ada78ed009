#include "pages/check/links.h"

#include "pages/check/attribute_rules.h"
#include "pages/check/page_walk.h"

namespace pages {

bool Link::is_back() const { return attribute->name == osdAttrName(ATTR_PREV_PAGE); }

bool Link::is_next() const { return attribute->name == osdAttrName(ATTR_NEXT_PAGE); }

bool Link::is_question() const { return attribute->name == osdAttrName(ATTR_CONFIRM_PAGE); }

std::vector<Link> all_links(const ResourceFolder& folder)
{
    std::vector<Link> links;
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        for_each_read(root, [&](const Element& element) {
            for (const Attribute& attribute : element.attributes) {
                const AttributeUse* use = find_use(role_of(element), attribute.name);
                if (use != nullptr && use->holds == Holds::Page && is_read(element, *use)) {
                    links.push_back({&page, &attribute, attribute.value});
                }
            }
        });
    });
    return links;
}

} // namespace pages
