#include "ppd/PaperSize.h"

#include <array>
#include <string>

namespace ComQuorvantVelmar_Plugin {
namespace {

// Type numbers are the press's fixed codes; the gaps belong to sizes it does not offer
// and must stay as they are.
constexpr std::array<PaperSize, 65> kPaperSizes{{
    {"A3", 1, 238111, 168378},
    {"A4LEF", 2, 119056, 168378},
    {"A4SEF", 3, 168378, 119056},
    {"A5", 4, 119056, 83906},
    {"B4", 5, 206363, 145701},
    {"B5LEF", 6, 103182, 145701},
    {"B5SEF", 7, 145701, 103182},
    {"B6", 8, 103182, 72567},
    {"80x100LEF", 10, 115201, 144001},
    {"80x100SEF", 11, 144001, 115201},
    {"85x110LEF", 12, 122401, 158401},
    {"85x110SEF", 13, 158401, 122401},
    {"85x130", 14, 187201, 122401},
    {"85x140", 15, 201601, 122401},
    {"110x170", 16, 244801, 158401},
    {"120x180", 17, 259201, 172801},
    {"126x177", 18, 255119, 181418},
    {"Hagaki", 19, 83906, 56693},
    {"DoublePostcardSEF", 22, 113386, 83906},
    {"A2LEF", 30, 238111, 336756},
    {"B3LEF", 38, 206363, 291969},
    {"A4Booklet", 49, 119056, 168378},
    {"B5Booklet", 50, 103182, 145701},
    {"A5Booklet", 51, 83906, 119056},
    {"85x110Booklet", 52, 122401, 158401},
    {"A5LEF", 53, 83906, 119056},
    {"130x180", 57, 259201, 187201},
    {"A6", 62, 83906, 59528},
    {"126x192", 65, 276332, 181418},
    {"260x180", 66, 259201, 374401},
    {"130x190", 67, 273601, 187201},
    {"Envchou3SEF", 68, 133229, 68032},
    {"A6Booklet", 71, 59528, 83906},
    {"B6Booklet", 72, 72567, 103182},
    {"8Kai", 76, 219969, 151371},
    {"16KaiLEF", 77, 109985, 151371},
    {"Envkaku2SEF", 78, 188221, 136063},
    {"16Kai", 79, 151371, 109985},
    {"8KaiC", 82, 221103, 153071},
    {"16KaiC", 83, 153071, 110552},
    {"16KaiLEFC", 84, 110552, 153071},
    {"Envkaku20", 88, 183686, 129827},
    {"Envkaku6", 89, 129827, 91843},
    {"260x190", 104, 273601, 374401},
    {"Kikuban16LEF", 106, 90142, 132662},
    {"Kikuban16SEF", 107, 132662, 90142},
    {"Kikuban8LEF", 108, 132662, 180284},
    {"Kikuban8SEF", 109, 180284, 132662},
    {"Kikuban4SEF", 110, 265890, 180284},
    {"Shirokuban16LEF", 111, 111686, 154205},
    {"Shirokuban16SEF", 112, 154205, 111686},
    {"Shirokuban8SEF", 113, 223371, 154205},
    {"Envkaku1SEF", 114, 216567, 153071},
    {"Envkaku3LEF", 115, 122457, 157040},
    {"Envkaku3SEF", 116, 157040, 122457},
    {"Envyou2SEF", 117, 91843, 64630},
    {"Envyou3SEF", 118, 83906, 55560},
    {"Envyou4SEF", 119, 133229, 59528},
    {"Envyouchou3LEF", 120, 68032, 133229},
    {"Envyouchou3SEF", 121, 133229, 68032},
    {"Envkaku7SEF", 129, 116221, 80504},
    {"Envkaku8SEF", 130, 111686, 67465},
    {"Envyou6SEF", 131, 107717, 55560},
    {"Envchou1SEF", 133, 188221, 80504},
    {"Envchou2SEF", 134, 157040, 67465},
}};

}  // namespace

const PaperSize* PaperSize::find(std::string_view name) {
    for (const PaperSize& size : kPaperSizes)
        if (size.name == name) return &size;
    return nullptr;
}

std::span<const PaperSize> PaperSize::all() { return kPaperSizes; }

PlistDictionary PaperSize::record() const {
    return PlistDictionary{{"typeNum", std::to_string(typeNum)},
                           {"height", std::to_string(height)},
                           {"width", std::to_string(width)}};
}

}  // namespace ComQuorvantVelmar_Plugin
