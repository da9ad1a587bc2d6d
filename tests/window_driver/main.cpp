#include "driver/driver.h"
#include "platform/process.h"
#include "tests/window_driver/stage.h"
#include "tests/window_driver/window_hand.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace zeugnis;
    const auto surroundings = driver::surroundingsFrom(programArguments(argc, argv));
    if (!surroundings) {
        std::cerr << "usage: zeugnis-window-driver FOLDER [--date dd.mm.yyyy]\n";
        return 2;
    }
    windowdriver::Stage stage;
    return windowdriver::Stage::play([&] {
        driver::DialogScript script(std::cout);
        windowdriver::WindowHand hand(std::cout, script);
        driver::Driver driver(std::cout, *surroundings, script, hand);
        return driver.run(std::cin);
    });
}
