#include "core/model/aircraft.h"

#include <skyvane/core/feed/adsb.h>
#include <skyvane/core/model/aircraft.h>

#include <iostream>

int main()
{
    const Aircraft own{.seats = 4};
    const skyvane::Aircraft heard{.hex = "a1b2c3", .flight = "UAL123  "};
    std::cout << heard.displayName() << " is not one with " << own.seats << " seats\n";
}
