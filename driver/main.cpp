#include "driver/driver.h"
#include "driver/model_hand.h"
#include "platform/failure.h"
#include "platform/version.h"

#include <iostream>
#include <string_view>

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::cout << "zeugnis-driver " << zeugnis::utf8FromText(zeugnis::Programmversion()) << '\n';
        return 0;
    }
    const auto surroundings = zeugnis::driver::surroundingsFrom(argc, argv);
    if (!surroundings) {
        std::cerr << "usage: zeugnis-driver FOLDER [--date dd.mm.yyyy]\n";
        return 2;
    }
    try {
        zeugnis::driver::DialogScript script(std::cout);
        zeugnis::driver::ModelHand hand(script);
        zeugnis::driver::Driver driver(std::cout, *surroundings, script, hand);
        return driver.run(std::cin);
    } catch (const std::exception& failure) {
        std::cerr << zeugnis::utf8FromText(zeugnis::sentenceOf(failure)) << '\n';
        return 1;
    }
}
