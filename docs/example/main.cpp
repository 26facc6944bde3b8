// Names what flies: who B738 UAL123
#include <skyvane/core/enrichment/aircraft_types.h>
#include <skyvane/core/enrichment/airlines.h>

#include <iostream>

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 3) {
        std::cerr << "usage: who DESIGNATOR CALLSIGN\n";
        return 2;
    }
    std::cout << skyvane::AircraftTypes::name(arguments[1]).value_or("unknown model") << ", "
              << skyvane::Airlines::name(arguments[2]).value_or("unknown airline") << '\n';
    return 0;
}
