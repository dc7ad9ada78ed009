#include "pages/check/links.h"

#include "pages/grammar/cases.h"
#include "pages/grammar/page_walk.h"

namespace pages {

bool Link::is_back() const { return attribute->name == osdAttrName(ATTR_PREV_PAGE); }

bool Link::is_next() const { return attribute->name == osdAttrName(ATTR_NEXT_PAGE); }

bool Link::is_question() const { return attribute->name == osdAttrName(ATTR_CONFIRM_PAGE); }

std::vector<Link> all_links(const ResourceFolder& folder)
{
    std::vector<Link> links;
    for_each_page(folder, [&](const PageFile& page, const Element& root) {
        for_each_use(root, [&](const Element&, const Attribute& attribute, const AttributeUse& use) {
            if (use.holds == Holds::Page) {
                links.push_back({&page, &attribute, attribute.value});
            }
        });
    });
    return links;
}

} // namespace pages
