#include "conditions/conditions_file.h"
#include "run/base/diagnostics.h"
#include "run/base/shell_command.h"
#include "run/base/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

std::int32_t read_number(std::string text, int base) {
    return string2int(text.data(), base);
}

TEST(Text, NumbersFollowTheLibraryButEndWithTheText) {
    struct Row {
        const char* text;
        int base;
        std::int32_t value;
    };
    for (const Row& row : {Row{"6", 10, 6},
                           {"3x", 10, -1},
                           {"", 10, -1},
                           {"  \n", 10, -1},
                           {"-5", 10, -5},
                           {"-", 10, 0},
                           {"-5x", 10, 1},
                           {"--5", 10, 5},
                           {"+3", 10, 3},
                           {" -5", 10, -5},
                           {"\t", 10, -1},
                           {"19A2", 16, 0x19a2},
                           {"0x19A2", 16, 0x19a2},
                           {" 19a2\n", 16, 0x19a2},
                           {"FFFFFFFF", 16, -1},
                           {"7FFFFFFF", 16, 0x7fffffff},
                           {"80000000", 16, INT32_MIN},
                           {"-80000000", 16, INT32_MIN},
                           {"1FFFFFFFF0001", 16, -65535}}) {
        EXPECT_EQ(read_number(row.text, row.base), row.value) << "'" << row.text << "'";
    }
    std::string trailing = " 19A2 \n";
    string2int(trailing.data(), 16);
    EXPECT_STREQ(trailing.c_str(), " 19A2");
    EXPECT_EXIT(read_number("10000000000000000", 16), testing::ExitedWithCode(1), "^strtoul: ");
}

TEST(Text, CleaningKeepsCarriageReturns) {
    std::string quoted = "  \"Emulex\"\t\n";
    EXPECT_STREQ(cleanString(quoted.data()), "Emulex");
    EXPECT_STREQ(quoted.c_str(), "   Emulex");
    std::string carriage = " a b\r\n";
    EXPECT_STREQ(cleanString(carriage.data()), "a b\r");
    for (std::string blank : {"", "  ", "\"\t\n"}) {
        EXPECT_STREQ(cleanString(blank.data()), "");
    }
}

TEST(Text, FieldsAreCutAndTerminated) {
    char field[4] = "xyz";
    copy_text(field, "abcdef");
    EXPECT_STREQ(field, "abc");
    copy_text(field, "");
    EXPECT_STREQ(field, "");
}

TEST(ShellWord, QuotesWhatIsNotOnePlainWord) {
    EXPECT_EQ(shell_word(""), "");
    EXPECT_EQ(shell_word("/opt/a-b_c.d,e=f+g%h@i:j"), "/opt/a-b_c.d,e=f+g%h@i:j");
    for (const char* hostile :
         {"a b", "a;b", "$(a)", "`a`", "a\"b", "~a", "*", "\xc3\xa4", "a\r"}) {
        EXPECT_EQ(shell_word(hostile), "'" + std::string(hostile) + "'");
    }
    EXPECT_EQ(shell_word("a'b"), R"('a'\''b')");
}

// No command line shows the screen to a debug run, so only the writer itself
// can be asked where its messages go.
TEST(Diagnostics, LevelsAndScreenDecideWhereAMessageGoes) {
    const auto written = [](int verbose, int debug, int screen, int level) {
        VerboseLevel = verbose;
        DebugLevel = debug;
        PrintDebugOnScreen = screen;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int result = PrintDebug(level, "m", nullptr);
        static_cast<void>(std::fflush(stdout));
        return testing::internal::GetCapturedStdout() + "|" +
               testing::internal::GetCapturedStderr() + "|" + std::to_string(result);
    };
    EXPECT_EQ(written(1, 0, 1, 1), "m||1");
    EXPECT_EQ(written(3, 0, 1, 4), "||0");
    EXPECT_EQ(written(0, 0, 1, 1), "||0");
    EXPECT_EQ(written(0, 2, 1, 2), "|m|1");
    EXPECT_EQ(written(6, 6, 0, 1), "||0");
}

// The refusal is shown only where a debug run may use the screen; every line of
// the file counts for its number, the text is the stored one.
TEST(Conditions, RefusalNamesLineColumnAndStoredText) {
    char path[] = "/tmp/cnatool_test_XXXXXX";
    const int descriptor = mkstemp(path);
    ASSERT_GE(descriptor, 0);
    close(descriptor);
    std::ofstream(path) << "# comment\n--+--\nE|M|19A2|0714|1C3E|nothex7|\n";
    VerboseLevel = 0;
    DebugLevel = 1;
    PrintDebugOnScreen = 1;
    EXPECT_EXIT(Read_FC_Config_File(path), testing::ExitedWithCode(55),
                "^\nError line 3: Sub-System-Id nothe is not a valid hex value!\n$");
    std::ofstream(path) << "E|M|19A2|\n";
    EXPECT_EXIT(Read_FC_Config_File(path), testing::ExitedWithCode(55),
                "Error line 1: Device-Id  is not a valid");
    unlink(path);
}

} // namespace
