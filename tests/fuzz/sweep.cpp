// Every file of the blade cut at every byte, and each of its lines, or all of them,
// doubled, stretched or spoilt.

#include "harness.h"

#include <cstdio>
#include <functional>
#include <vector>

int main() {
    using Change = std::function<std::string(const std::string&)>;
    std::vector<Change> changes = {
        [](const std::string& line) { return line + "\n" + line; },
        [](const std::string& line) { return line.substr(0, line.size() / 2) + '\0' + line; },
        [](const std::string& line) { return line + "\r"; },
        [](const std::string& line) { return line + "\xff\xe4%s%n$(x)';|"; },
        [](const std::string&) { return std::string(); },
    };
    for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 100000U}) {
        changes.emplace_back(
            [=](const std::string& line) { return line + std::string(length - line.size(), '9'); });
    }
    int runs = 0;
    const auto run = [&](const BladeFile& file, const std::string& content) {
        run_with(file, content, ++runs % 2 == 0);
    };
    for (const BladeFile& file : blade().first(4)) {
        for (std::size_t length = 0; length <= file.content.size(); ++length) {
            run(file, file.content.substr(0, length));
        }
        for (const Change& change : changes) {
            std::string all;
            for (std::size_t start = 0, end; start < file.content.size(); start = end + 1) {
                end = file.content.find('\n', start);
                const std::string changed = change(file.content.substr(start, end - start));
                run(file, file.content.substr(0, start) + changed + file.content.substr(end));
                all += changed + "\n";
            }
            run(file, all);
        }
    }
    std::string luns, groups = blade()[0].content, ports;
    for (int i = 0; i < 500; ++i) {
        luns += blade()[3].content;
        ports += blade()[1].content;
        groups.insert(groups.find(" |x\n") + 3, "|D|C|x");
    }
    run(blade()[3], luns);
    run(blade()[0], groups);
    run(blade()[1], ports);
    std::fprintf(stderr, "%d runs\n", runs);
}
