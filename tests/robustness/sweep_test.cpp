// Broken input for the real program: one file of a small blade at a time is cut,
// doubled, stretched or spoilt, and every run must end with a status of the
// table. Under the sanitizers, whose reports end with a status of their own.

#include "run/base/return_codes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

std::string attributes(const std::string& wwn) {
    return "HBA Attributes for " + wwn +
           "\n\nHost Name : blade\nModel : CNA\nModel Desc : \"a CNA\"\nVendor Spec ID : 19A2\n"
           "Device ID : 0714\nDriver Version : 1.2\nSub Device ID : 11C1\nSub Vendor ID : 1C3E\n";
}

std::string mapping(const std::string& wwn) {
    return "Target Mapping for " + wwn +
           "\n\n\n\nFCP LUN : 00\nSCSI OS Lun : 0\nVendor ID : DGC\nProduct ID : CX1\nType : "
           "Disk\n";
}

std::string port(const std::string& wwn, const std::string& number) {
    return "Port WWN : " + wwn + "\nMfg : Emulex\nSerial No. : S1\nPort Number : " + number +
           "\nMode : I\nPCI Function : " + number + "\nPort Type : FCoE\nModel : CNA-1\n";
}

// A blade of one adapter with two ports.
const std::map<std::string, std::string>& blade() {
    static const std::map<std::string, std::string> files = {
        {"FC_HBA_Conditions.txt",
         "# comment\n--+--\n|\nEmulex | CNA | 19A2 | 0714 | 1C3E | 11C1 | x | x "
         "| fw | *.b | x | x | DGC | C,CX | x | NRB | | x\n"},
        {"local_hba_list.out", "List\n\n" + port("10:01", "0") + "\n" + port("10:02", "1")},
        {"S1_0_hba_attributes.out", attributes("10:01")},
        {"S1_1_hba_attributes.out", attributes("10:02")},
        {"S1_0_target_mapping.out", mapping("10:01")},
        {"S1_1_target_mapping.out", mapping("10:02")},
        {"fw1", ""},
        {"x.b", ""},
    };
    return files;
}

void write(const std::string& name, const std::string& content) {
    std::ofstream("blade/" + name, std::ios::binary) << content;
}

class Sweep : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override {
        char name[] = "/tmp/cnatool_sweep_XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        before_ = std::filesystem::current_path();
        scratch_ = name;
        std::filesystem::current_path(scratch_);
        std::filesystem::create_directory("blade");
        for (const auto& [file, content] : blade()) {
            write(file, content);
        }
    }
    void TearDown() override {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(scratch_);
    }

private:
    std::filesystem::path before_;
    std::filesystem::path scratch_;
};

// Runs the program on the blade, a check and a flash in turn. Returns its
// status, or -1 when a signal or the time has ended it.
int run() {
    static bool flash = false;
    flash = !flash;
    std::vector<const char*> words = {"timeout",    "20",        std::getenv("CNATOOL"),
                                      "--simulate", "--conpath", "blade",
                                      "-v",         "6",         "-pci-id",
                                      "19A2:0714"};
    if (flash) {
        words.push_back("--flash");
    }
    words.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "errors", O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    pid_t child = 0;
    const int failed = posix_spawnp(&child, words[0], &quiet, nullptr,
                                    const_cast<char* const*>(words.data()), environ);
    posix_spawn_file_actions_destroy(&quiet);
    int status = 0;
    if (failed != 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

bool of_the_table(int status) {
    const auto codes = return_codes();
    return std::any_of(codes.begin(), codes.end(),
                       [&](const auto& code) { return code.value == status; });
}

void expect_survived(const std::string& file, const std::string& content) {
    write(file, content);
    const int status = run();
    EXPECT_TRUE(of_the_table(status)) << status << " for " << file << ":\n"
                                      << std::ifstream("errors").rdbuf() << "\n"
                                      << content.substr(0, 2000);
}

Lines split(const std::string& content) {
    Lines lines;
    for (std::size_t start = 0; start < content.size();) {
        const std::size_t end = std::min(content.find('\n', start), content.size() - 1) + 1;
        lines.push_back(content.substr(start, end - start));
        start = end;
    }
    return lines;
}

TEST_P(Sweep, CutAnywhere) {
    const std::string& content = blade().at(GetParam());
    for (std::size_t length = 0; length <= content.size(); ++length) {
        expect_survived(GetParam(), content.substr(0, length));
    }
}

TEST_P(Sweep, SpoiltLines) {
    using Change = std::function<std::string(const std::string&)>;
    std::vector<Change> changes = {
        [](const std::string& line) { return line + line; },
        [](const std::string& line) { return line.substr(0, line.size() / 2) + '\0' + line; },
        [](const std::string& line) { return line.substr(0, line.size() - 1) + "\r\n"; },
        [](const std::string& line) { return line.substr(0, line.size() - 1) + "\xff\xe4\n"; },
        [](const std::string& line) { return line.substr(0, line.size() - 1) + "%s%n$(x)';|\n"; },
        [](const std::string&) { return std::string("\n"); },
    };
    for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 100000U}) {
        changes.emplace_back([length](const std::string& line) {
            return line.substr(0, line.size() - 1) + std::string(length - line.size(), '9') + "\n";
        });
    }
    const Lines lines = split(blade().at(GetParam()));
    for (const Change& change : changes) {
        std::string all;
        for (std::size_t changed = 0; changed < lines.size(); ++changed) {
            std::string content;
            for (std::size_t i = 0; i < lines.size(); ++i) {
                content += i == changed ? change(lines[i]) : lines[i];
            }
            expect_survived(GetParam(), content);
            all += change(lines[changed]);
        }
        expect_survived(GetParam(), all);
    }
}

// What can't be opened as a file must neither hang nor be taken for an empty one.
TEST_P(Sweep, NoFile) {
    const std::string path = "blade/" + GetParam();
    std::set<int> statuses;
    for (int kind = 0; kind < 4; ++kind) {
        std::filesystem::remove_all(path);
        if (kind == 1) {
            std::filesystem::create_directory(path);
        } else if (kind == 2) {
            ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
        } else if (kind == 3) {
            std::filesystem::create_symlink(GetParam(), path);
        }
        statuses.insert(run());
        run(); // the other of check and flash, so that all kinds are checked alike
        statuses.insert(run());
    }
    EXPECT_EQ(statuses.size(), 1U);
    EXPECT_TRUE(of_the_table(*statuses.begin()));
}

INSTANTIATE_TEST_SUITE_P(Files, Sweep,
                         testing::Values("FC_HBA_Conditions.txt", "local_hba_list.out",
                                         "S1_0_hba_attributes.out", "S1_1_target_mapping.out"),
                         [](const auto& file) { return "File" + std::to_string(file.index); });

TEST_F(Sweep, Limits) {
    std::string luns = mapping("10:02");
    std::string groups = blade().at("FC_HBA_Conditions.txt");
    std::string ports;
    for (int i = 0; i < 500; ++i) {
        luns += mapping("").substr(20);
        groups.insert(groups.size() - 1, "|D|C|x");
    }
    for (int i = 0; i < 4096; ++i) {
        ports += port("10:01", std::to_string(i % 2));
    }
    write("S1_1_target_mapping.out", luns);
    EXPECT_EQ(run(), RET_OK);
    EXPECT_EQ(run(), RET_OK);
    write("FC_HBA_Conditions.txt", groups);
    run();
    EXPECT_TRUE(of_the_table(run()));
    write("local_hba_list.out", ports);
    EXPECT_TRUE(of_the_table(run()));
}

} // namespace
