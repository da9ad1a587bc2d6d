#include "driver/driver.h"
#include "driver/model_hand.h"
#include "platform/failure.h"
#include "platform/process.h"
#include "platform/version.h"

#include <iostream>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<zeugnis::Text> arguments = zeugnis::programArguments(argc, argv);
    if (arguments.size() == 1 && arguments[0] == u"--version") {
        std::cout << "zeugnis-driver " << zeugnis::utf8FromText(zeugnis::Programmversion()) << '\n';
        return 0;
    }
    const auto surroundings = zeugnis::driver::surroundingsFrom(arguments);
    if (!surroundings) {
        std::cerr << "usage: zeugnis-driver FOLDER [--date dd.mm.yyyy]\n";
        return 2;
    }
    zeugnis::useBinaryStreams();
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
