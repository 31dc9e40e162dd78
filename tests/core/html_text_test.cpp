#include "core/html_text.h"

#include <gtest/gtest.h>

namespace orrelix {

TEST(HtmlText, FillsHolesAndLeavesFieldsAsTheyAre) {
    const std::string field = "$\n";
    const std::string text = MakeHtml([&](CHtmlText& html) {
        html.Text("$|\n", field);
        html.Line("$", -12);
        html.Lines(R"(
first

$ in $
)",
                   field, 3u);
        html.Lines("\n\nlast");
    });
    EXPECT_EQ(text, "$\n|\n-12\r\nfirst\r\n\r\n$\n in 3\r\n\r\nlast");
    EXPECT_EQ(Fill("\n$\n", field), "$\n\n");
}

} // namespace orrelix
