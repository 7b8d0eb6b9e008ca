#include "browser/SecurityZones.h"

#include <iterator>

#include "browser/ChoiceEditor.h"

namespace velkarix {

namespace {

constexpr const char* Names[] = {"My Computer", "Local Intranet", "Trusted Sites", "Internet",
                                 "Restricted Sites"};

}  // namespace

std::vector<std::string> SecurityZoneNames() {
    return {std::begin(Names), std::end(Names)};
}

std::string SecurityZoneName(double number) {
    for (std::size_t i = 0; i < std::size(Names); ++i) {
        if (number == static_cast<double>(i)) return Names[i];
    }
    return UnknownChoice;
}

}  // namespace velkarix
