#include "alerts/closest_approach.h"
#include "tests/alerts/flight_model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <regex>
#include <string>
#include <vector>

/// What is predicted minutes ahead, held against flights as they went on; docs/alerts.md states the errors.
namespace skyvane {

namespace {

using test::FlightPlan;
using test::FlightState;
using test::Motion;

constexpr double whole = 900; ///< Seconds of each flight.

/// The largest errors of a kind of flight.
struct Errors {
    double degrees = 0;
    double seconds = 0;
};

/// For how long ahead, in seconds.
constexpr double soon = 180;
constexpr double late = 480;

struct Kind {
    std::string name; ///< As the paper has it.
    double speed;
    double feet;
    std::function<Motion(double seconds)> motion;
};

std::vector<Kind> kinds()
{
    return {
        {"cruising, 450 kt at 36,000 ft", 450, 36'000, [](double) { return Motion{.speed = 450}; }},
        {"climbing, 250 to 340 kt, 2,600 to 1,400 ft/min", 250, 4'000,
            [](double seconds) {
                return Motion{.speed = std::min(250 + 0.1 * seconds, 340.0),
                    .climb = std::max(2'600 - 1.35 * seconds, 1'400.0)};
            }},
        {"descending, 320 to 210 kt, 1,800 ft/min", 320, 30'000,
            [](double seconds) {
                return Motion{.speed = std::max(320 - 0.12 * seconds, 210.0), .climb = -1'800};
            }},
        {"levelling off at 4,000 ft", 260, 12'000,
            [](double seconds) {
                return Motion{.speed = 260 - 0.06 * seconds, .climb = seconds < 320 ? -1'500.0 : 0};
            }},
        {"a light aircraft, 110 kt at 2,500 ft, wavering", 110, 2'500,
            [](double seconds) {
                return Motion{
                    .speed = 110 + 4 * std::sin(seconds / 40), .turn = 0.08 * std::sin(seconds / 25)};
            }},
    };
}

const std::vector<Coordinate>& homes()
{
    static const std::vector<Coordinate> places{{.latitude = 51.5, .longitude = -0.12},
        {.latitude = -33.9, .longitude = 151.2}, {.latitude = 64.1, .longitude = -21.9}};
    return places;
}

/// Of flights that pass overhead after ten minutes, the home so far to the side of them.
Errors worst(const Kind& kind, double ahead)
{
    Errors errors;
    for (const Coordinate& start : homes()) {
        for (int track = 0; track < 360; track += 60) {
            const auto flight = test::flown({start, 1.0 * track, kind.feet, kind.motion}, whole);
            const FlightState& middle = test::at(flight, 600);
            for (const double aside : {0.0, 0.5, 2.0, 5.0}) {
                const Coordinate home = test::displaced(middle.place, middle.track + 90, aside);
                const FlightState& top = test::highest(flight, home);
                const double truth = test::seen(top, home).elevationDeg;
                if (truth < 20)
                    continue;
                for (double before = 30; before <= ahead; before += 30) {
                    const FlightState& state = test::at(flight, top.seconds - before);
                    const auto found = closestApproach(test::reported(state), home);
                    errors.degrees
                        = std::max(errors.degrees, found ? std::abs(found->elevationDeg - truth) : 90.0);
                    errors.seconds
                        = std::max(errors.seconds, found ? std::abs(found->in.count() - before) : whole);
                }
            }
        }
    }
    return errors;
}

/// The four figures of a row of the paper's table.
std::vector<double> stated(const std::string& name)
{
    std::ifstream file{SKYVANE_ALERTS_PAPER};
    for (std::string line; std::getline(file, line);) {
        if (line.find("| " + name + " |") == std::string::npos)
            continue;
        const std::string cells = line.substr(line.find(name) + name.size());
        const std::regex number{"[0-9.]+"};
        std::vector<double> figures;
        for (std::sregex_iterator match{cells.begin(), cells.end(), number}, end; match != end; ++match)
            figures.push_back(std::stod(match->str()));
        return figures;
    }
    return {};
}

/// Neither less than it was found to be, nor much more.
void expectStated(double paper, double found, const std::string& what)
{
    EXPECT_LE(found, paper) << what;
    EXPECT_GE(found * 1.3 + 1, paper) << what << " is found to be " << found;
}

} // namespace

TEST(Prediction, isAsFarOffAsThePaperSays)
{
    for (const Kind& kind : kinds()) {
        const auto figures = stated(kind.name);
        const Errors near = worst(kind, soon);
        const Errors far = worst(kind, late);
        EXPECT_EQ(figures.size(), 4U)
            << kind.name << " is found to be off by " << near.degrees << "°, " << near.seconds << " s, "
            << far.degrees << "°, " << far.seconds << " s";
        if (figures.size() != 4)
            continue;
        expectStated(figures[0], near.degrees, kind.name + ": degrees three minutes ahead");
        expectStated(figures[1], near.seconds, kind.name + ": seconds three minutes ahead");
        expectStated(figures[2], far.degrees, kind.name + ": degrees eight minutes ahead");
        expectStated(figures[3], far.seconds, kind.name + ": seconds eight minutes ahead");
    }
}

TEST(Prediction, growsBetterWithEveryAnswerOfTheSky)
{
    const auto flight = test::flown({{.latitude = 48, .longitude = 11}, 70, 4'000, kinds()[1].motion}, whole);
    const Coordinate home = test::displaced(test::at(flight, 600).place, 160, 1);
    const FlightState& top = test::highest(flight, home);
    const double truth = test::seen(top, home).elevationDeg;
    double before = 90;
    for (const double seconds : {480.0, 180.0, 60.0}) { // Answers minutes apart.
        const FlightState& state = test::at(flight, top.seconds - seconds);
        const auto found = closestApproach(test::reported(state), home);
        ASSERT_TRUE(found);
        const double error = std::abs(found->elevationDeg - truth);
        EXPECT_LT(error, before) << seconds;
        before = error;
    }
    EXPECT_LT(before, 3);
}

} // namespace skyvane
