// What the documents say of options and statuses is what the tables say.

#include "run/base/return_codes.h"
#include "run/options.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

using Texts = std::set<std::string>;

// Every first group of the pattern in a file of the project, after `roff`
// escapes are undone.
Texts texts_in(const std::string& file, const std::string& pattern) {
    std::ifstream stream(std::string(SOURCE_DIRECTORY) + "/" + file);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    std::erase(text, '\\');
    Texts texts;
    const std::regex expression(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match) {
        texts.insert((*match)[1]);
    }
    return texts;
}

Texts option_texts() {
    Texts texts;
    for (const Option& option : options()) {
        texts.emplace(option.text);
    }
    return texts;
}

TEST(Documents, NameEveryOptionAndNoOther) {
    // The man page has its options in the lines behind .TP, the README in its
    // table, the completion in what it offers.
    Texts page;
    for (const std::string& line : texts_in("man/cnatool.8", R"(\.TP\n\.(BI?R? .*)\n)")) {
        std::istringstream words(line);
        for (std::string word; words >> word;) {
            if (word.starts_with('-')) {
                page.insert(word);
            }
        }
    }
    EXPECT_EQ(page, option_texts());
    Texts readme;
    for (const std::string& row : texts_in("README.md", R"(\n\| (`-[^|]*) \|)")) {
        const std::regex word("`(-[^ `]+)");
        for (std::sregex_iterator match(row.begin(), row.end(), word), end; match != end; ++match) {
            readme.insert((*match)[1]);
        }
    }
    EXPECT_EQ(readme, option_texts());
    Texts completion;
    for (const std::string& list :
         texts_in("completion/cnatool", "local (?:information|others)=\"([^\"]*)\"")) {
        std::istringstream words(list);
        completion.insert(std::istream_iterator<std::string>(words), {});
    }
    EXPECT_EQ(completion, option_texts());
}

TEST(Documents, NameEveryStatus) {
    Texts statuses;
    for (const ReturnCodeName& code : return_codes()) {
        statuses.insert(std::to_string(code.value) + " " + code.name);
    }
    EXPECT_EQ(texts_in("man/cnatool.8", R"(\n\.TP\n(\d+ RET_\w+)\n)"), statuses);
    Texts readme;
    for (const std::string& row : texts_in("README.md", R"(\n\| (\d+ \| `RET_\w+)`)")) {
        readme.insert(std::regex_replace(row, std::regex(R"( \| `)"), " "));
    }
    EXPECT_EQ(readme, statuses);
}

} // namespace
