#include "tuning/meantoneGamut.h"

#include "tuning/Tuning.h"

namespace velmora {

// Ratios and rounded cents are mixed: see docs/decisions.md, 2.
std::vector<std::unique_ptr<Tuning>> meantone::pitches()
{
    std::vector<std::unique_ptr<Tuning>> result;
    const auto cents = [&](double value) { result.push_back(std::make_unique<Cent>(value)); };
    const auto ratio = [&](double numerator, double denominator) {
        result.push_back(std::make_unique<Ratio>(numerator, denominator));
    };
    ratio(125, 128);
    cents(0);
    ratio(128, 125);
    cents(76.049);
    cents(117.10786);
    cents(152.098);
    cents(193.15686);
    cents(234.21572);
    cents(269.20586);
    cents(310.26471);
    cents(351.32357);
    ratio(5, 4);
    ratio(32, 25);
    cents(462.36271);
    cents(503.42157);
    cents(544.48043);
    cents(579.47057);
    cents(620.52943);
    cents(655.51957);
    cents(696.57843);
    cents(737.63729);
    ratio(25, 16);
    ratio(8, 5);
    cents(848.67643);
    cents(889.73529);
    cents(930.79414);
    cents(965.78428);
    cents(1006.84314);
    cents(1047.902);
    cents(1082.89214);
    cents(1123.951);
    return result;
}

} // namespace velmora
