#include "driver/driver.h"
#include "driver/model_hand.h"

#include <iostream>

int main(int argc, char** argv) {
    const auto surroundings = zeugnis::driver::surroundingsFrom(argc, argv);
    if (!surroundings) {
        std::cerr << "usage: zeugnis-driver FOLDER [--date dd.mm.yyyy]\n";
        return 2;
    }
    zeugnis::driver::DialogScript script(std::cout);
    zeugnis::driver::ModelHand hand(script);
    zeugnis::driver::Driver driver(std::cout, *surroundings, script, hand);
    return driver.run(std::cin);
}
