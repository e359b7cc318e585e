#include "platform/HelpPage.h"

namespace platform {

namespace {

// The colours are the browser's own, light or dark as its user has them.
constexpr const char* kStyle = R"(<style>
:root { color-scheme: light dark; }
body { margin-left: 18rem; max-width: 44rem; padding: 0 2rem 4rem;
       font: 1rem/1.5 "Segoe UI", sans-serif; }
nav { position: fixed; top: 0; bottom: 0; left: 0; width: 16rem; overflow-y: auto;
      padding: 1rem; border-right: 1px solid GrayText; }
nav a { display: block; padding: .15rem 0; text-decoration: none; }
nav a:hover { text-decoration: underline; }
nav .h2 { padding-left: 1rem; }
nav .h3 { padding-left: 2rem; }
kbd { padding: 0 .3rem; border: 1px solid GrayText; border-radius: .2rem; }
@media (max-width: 56rem) {
  body { margin-left: 0; }
  nav { position: static; width: auto; max-height: 30vh;
        border: 1px solid GrayText; margin-top: 1rem; }
}
@media print { nav { display: none; } body { margin-left: 0; } }
</style>
)";

constexpr std::size_t kNowhere = std::string::npos;

// Whether what begins here is a heading of the contents.
bool isHeading(std::string_view tag) {
    return tag.size() > 3 && tag[2] >= '1' && tag[2] <= '3' && (tag[3] == '>' || tag[3] == ' ');
}

// The id in a tag, empty without one.
std::string idIn(const std::string& tag) {
    constexpr std::string_view kId = " id=\"";
    const std::size_t at = tag.find(kId);
    if (at == kNowhere)
        return {};
    const std::size_t begin = at + kId.size();
    return tag.substr(begin, tag.find('"', begin) - begin);
}

std::string withoutTags(std::string_view html) {
    std::string text;
    bool inTag = false;
    for (const char c : html) {
        inTag = inTag || c == '<';
        if (!inTag)
            text += c;
        inTag = inTag && c != '>';
    }
    return text;
}

} // namespace

std::string helpPage(std::string_view html) {
    std::string page(html), links;
    int given = 0;
    for (std::size_t at = page.find("<h"); at != kNowhere; at = page.find("<h", at + 1)) {
        if (!isHeading(std::string_view(page).substr(at)))
            continue;
        std::string id = idIn(page.substr(at, page.find('>', at) - at));
        if (id.empty()) {
            do
                id = "contents-" + std::to_string(++given);
            while (page.find(" id=\"" + id + '"') != kNowhere);
            page.insert(at + 3, " id=\"" + id + '"');
        }
        const std::size_t begin = page.find('>', at) + 1;
        const std::string title = withoutTags(page.substr(begin, page.find("</h", begin) - begin));
        links.append("<a class=\"h").append(page, at + 2, 1);
        links.append("\" href=\"#").append(id).append("\">").append(title).append("</a>\n");
    }
    const std::size_t body = page.find("<body");
    page.insert(body == kNowhere ? 0 : page.find('>', body) + 1,
                "\n<nav aria-label=\"Contents\">\n" + links + "</nav>\n");
    const std::size_t head = page.find("</head>");
    return page.insert(head == kNowhere ? 0 : head, kStyle);
}

} // namespace platform
