// Looks for a road that the windows do not go as the control model does.

#include "tests/window_driver/random_road.h"
#include "tests/window_driver/stage.h"

#include <iostream>
#include <string>

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: zeugnis-random-roads FIRST-SEED LAST-SEED [COMMANDS]\n";
        return 2;
    }
    const zeugnis::windowdriver::Stage stage;
    int found = 0;
    for (unsigned seed = static_cast<unsigned>(std::stoul(argv[1]));
         seed <= static_cast<unsigned>(std::stoul(argv[2])); ++seed) {
        const std::string difference = zeugnis::windowdriver::differenceOnRandomRoad(
            seed, argc > 3 ? std::stoi(argv[3]) : 150);
        if (difference.empty())
            continue;
        ++found;
        std::cout << "--- seed " << seed << '\n' << difference << std::flush;
    }
    std::cout << found << " roads differ\n";
    return found == 0 ? 0 : 1;
}
