#include <cups/cups.h>
#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "TestSupport.h"
#include "pde/LpOptionQuoting.h"

using namespace ComQuorvantVelmar_Plugin;

// A name lp cannot carry (empty, with a blank or "=") and a value with a NUL byte are refused;
// what lp's parser makes of the other values is checked below.
TEST(LpOptionQuoting, NamesAndValuesLpCannotCarryAreRefused) {
    const std::tuple<std::string, std::string, std::optional<std::string>> cases[] = {
        {"QZMediaType", "Plain", "QZMediaType=Plain"},
        {"n", "", "n="},
        {"", "x", std::nullopt},
        {"two words", "x", std::nullopt},
        {"a=b", "x", std::nullopt},
        {"n", std::string("a\0b", 3), std::nullopt},
    };
    for (const auto& [name, value, argument] : cases)
        EXPECT_EQ(LpOptionQuoting::lpOptionArgument(name, value), argument) << name << "=" << value;
    EXPECT_EQ(LpOptionQuoting::lpArguments({{"good", "1"}, {"bad name", "2"}}), std::nullopt);
    EXPECT_EQ(LpOptionQuoting::lpArguments({}), "");
}

// Each argument single-quoted: the shell hands lp exactly the escaped argument.
TEST(LpOptionQuoting, TheShellPassesEachArgumentUnchanged) {
    const std::vector<CupsOptionText> options{
        {"a", "two  spaces"}, {"b", "it's"},     {"c", "\"$HOME\" `id` $(id)"},
        {"d", "back\\slash"}, {"e", "Grüße 日本"}, {"f", "line\nbreak"},
        {"g", "*?[x]"},       {"h", "'"}};
    const std::optional<std::string> arguments = LpOptionQuoting::lpArguments(options);
    ASSERT_TRUE(arguments);
    const OstrinTest::ShellResult result =
        OstrinTest::runShell("printf '%s\\0' " + *arguments);
    ASSERT_EQ(result.exitCode, 0) << result.output;

    std::string expected;
    for (const auto& [name, value] : options)
        expected += std::string("-o") + '\0' + *LpOptionQuoting::lpOptionArgument(name, value) + '\0';
    EXPECT_EQ(result.output, expected);
}

// lp hands each -o argument to cupsParseOptions; it must give back the one option unchanged.
TEST(LpOptionQuoting, LpsOptionParserGivesBackEveryValue) {
    const std::string alphabet = " \t\n\v\f\r'\"\\,=%{}$`*?!#;&|<>()[]~axZ09\xc3\xa4\xe6\x97\xa5";
    std::mt19937 random(20240611);
    for (int round = 0; round < 2000; ++round) {
        std::string value;
        for (std::size_t length = random() % 24; length > 0; --length)
            value += alphabet[random() % alphabet.size()];
        if (!value.empty() && value[0] == '{') continue;  // a collection, on every path to cupsd
        const std::optional<std::string> argument = LpOptionQuoting::lpOptionArgument("QVNote", value);
        ASSERT_TRUE(argument);
        cups_option_t* options = nullptr;
        const int count = cupsParseOptions(argument->c_str(), 0, &options);
        ASSERT_EQ(count, 1) << *argument;
        EXPECT_STREQ(options[0].name, "QVNote");
        EXPECT_EQ(options[0].value, value) << *argument;
        cupsFreeOptions(count, options);
    }
}
