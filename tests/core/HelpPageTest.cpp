// The guide as the browser gets it.
#include "platform/HelpPage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

// What the group of the pattern matches, each time.
std::vector<std::string> found(const std::string& pattern, const std::string& in) {
    const std::regex sought(pattern);
    return {std::sregex_token_iterator(in.begin(), in.end(), sought, 1), {}};
}

TEST(HelpPage, LinksLeadToAPlaceInItAndTheContentsToEachHeadingOnce) {
    std::ifstream file(QUORVANTA_GUIDE);
    const std::string guide(std::istreambuf_iterator<char>(file), {});
    const std::string own = "<body class=\"a\"><hr><h2>A <i>b</i></h2><h3 id=\"contents-1\">C</h3>"
                            "<h4>D</h4><h1 class=\"e\">F</h1></body>";
    for (const std::string& text : {guide, own}) {
        const std::string page = platform::helpPage(text);
        const auto headings = found("<h[1-3][^>]* id=\"(.*?)\"", page);
        const auto ids = found(" id=\"(.*?)\"", page), links = found("href=\"#(.*?)\"", page);
        EXPECT_EQ(found("href=\"#(.*?)\"", page.substr(0, page.find("</nav>"))), headings);
        EXPECT_EQ(headings.size(), found("(<h[1-3])", text).size());
        EXPECT_EQ(std::set(ids.begin(), ids.end()).size(), ids.size());
        for (const std::string& link : links)
            EXPECT_EQ(std::ranges::count(ids, link), 1) << link;
    }
    EXPECT_NE(platform::helpPage(own).find("<body class=\"a\">\n<nav aria-label=\"Contents\">\n"
                                           "<a class=\"h2\" href=\"#contents-2\">A b</a>\n"),
              std::string::npos);
}

} // namespace
