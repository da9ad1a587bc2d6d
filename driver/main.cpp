#include "driver/driver.h"
#include "platform/failure.h"
#include "platform/version.h"

#include <iostream>
#include <string_view>

namespace {

int usage() {
    std::cerr << "usage: zeugnis-driver FOLDER [--date dd.mm.yyyy]\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::cout << "zeugnis-driver " << zeugnis::utf8FromText(zeugnis::Programmversion()) << '\n';
        return 0;
    }
    if (argc != 2 && argc != 4)
        return usage();
    std::optional<zeugnis::Text> date;
    if (argc == 4) {
        if (std::string_view(argv[2]) != "--date")
            return usage();
        date = zeugnis::textFromUtf8(argv[3]);
    }
    try {
        zeugnis::driver::Driver driver(std::cout, argv[1], date);
        return driver.run(std::cin);
    } catch (const std::exception& failure) {
        std::cerr << zeugnis::utf8FromText(zeugnis::sentenceOf(failure)) << '\n';
        return 1;
    }
}
