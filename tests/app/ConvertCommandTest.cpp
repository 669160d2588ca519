#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>

#include "CommandRunner.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::runCommand;
using Json = nlohmann::ordered_json;

namespace {

Json toJson(const PlistValue& value) {
    if (const auto* text = value.string()) return *text;
    if (const auto* flag = value.boolean()) return *flag;
    if (const auto* number = value.integer()) return *number;
    Json object = Json::object();
    if (const auto* dictionary = value.dictionary())
        for (const auto& [key, item] : *dictionary) object[key] = toJson(item);
    return object;
}

PlistDictionary realisticInternalOptions() {
    return *PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"))->dictionary();
}

// The library's answer in this process, with the language the command is given.
class ConvertCommand : public ::testing::Test {
protected:
    void SetUp() override { PreferredLanguages::setFirst("fr"); }
    void TearDown() override { PreferredLanguages::setFirst(""); }

    OstrinTest::TemporaryDirectory folder;
};

}  // namespace

TEST_F(ConvertCommand, BothDirectionsPrintWhatTheLibraryAnswers) {
    PlistDictionary press = realisticInternalOptions();
    PrintOptionConverter::convertToCanonicalPpdKeyword(press, 1);
    PlistDictionary internal = press;
    PrintOptionConverter::convertToInternalPpdKeyword(internal);
    OstrinTest::writeFile(folder.file("internal.json"), toJson(realisticInternalOptions()).dump());
    OstrinTest::writeFile(folder.file("canonical.json"), toJson(press).dump());
    auto canonical = runCommand({"--lang", "fr", "convert", "--to", "canonical", folder.file("internal.json")});
    ASSERT_EQ(canonical.exitCode, 0) << canonical.err;
    EXPECT_EQ(Json::parse(canonical.out), toJson(press));
    EXPECT_EQ(Json::parse(canonical.out)["TwoColorPressSimulationSpotSpotName"], "Gold 1.5,Silver 2.5");
    auto back = runCommand({"--lang", "fr", "convert", "--to", "internal", folder.file("canonical.json")});
    ASSERT_EQ(back.exitCode, 0) << back.err;
    EXPECT_EQ(Json::parse(back.out), toJson(internal));
}

TEST_F(ConvertCommand, ReadsStandardInputAndKeepsValueKinds) {
    auto result = runCommand({"convert", "--to", "canonical", "-"},
                             R"({"Magnification": "75.5", "NumCopies": 3, "Collate": true})");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json output = Json::parse(result.out);
    EXPECT_EQ(output["Magnification"], "755");
    EXPECT_EQ(output["NumCopies"], 3);
    EXPECT_EQ(output["Collate"], true);
    EXPECT_EQ(output.begin().key(), "Magnification");
}

TEST_F(ConvertCommand, TableDirectionsUseTheBundlesConversionTable) {
    auto toPpd = runCommand({"convert", "--to", "ppd-format"}, R"({"PP_TRAY": "5", "SP_SAVEFT": 1, "X": 1})");
    ASSERT_EQ(toPpd.exitCode, 0) << toPpd.err;
    EXPECT_EQ(Json::parse(toPpd.out), Json::parse(R"({"QVInputSlot": "TrayMSI", "QZSaveFile": "TIFF600dpi"})"));
    auto toInputManager = runCommand({"convert", "--to", "input-manager"}, R"({"QVInputSlot": "Tray3", "SecPrint": "True"})");
    ASSERT_EQ(toInputManager.exitCode, 0) << toInputManager.err;
    EXPECT_EQ(Json::parse(toInputManager.out), Json::parse(R"({"PP_TRAY": 3, "SC_SECURE": true})"));
}

TEST_F(ConvertCommand, InputThatIsNoJsonObjectOrNoBundleIsAnInputError) {
    const std::string broken = folder.file("broken.json");
    OstrinTest::writeFile(broken, "{\"a\": [1,}");
    const struct {
        std::vector<std::string> arguments;
        std::string input;
        std::string err;
    } cases[] = {
        {{"convert", "--to", "canonical"}, R"({"Punch_PunchHoles": )", "standard input is not valid JSON"},
        {{"convert", "--to", "input-manager"}, R"({"Punch_PunchHoles": )", "standard input is not valid JSON"},
        {{"convert", "--to", "canonical", broken}, "", broken + " is not valid JSON"},
        {{"convert", "--to", "internal"}, "[1, 2]", "standard input does not hold a JSON object"},
        {{"--resources", folder.path(), "convert", "--to", "ppd-format"}, "{}", "no extension bundle at " + folder.path()},
    };
    for (const auto& probe : cases) {
        auto result = runCommand(probe.arguments, probe.input);
        EXPECT_EQ(result.exitCode, 3) << probe.err;
        EXPECT_EQ(result.err, "ostrin-flow: " + probe.err + "\n");
        EXPECT_TRUE(result.out.empty());
    }
    auto missing = runCommand({"convert", "--to", "internal", folder.file("absent.json")});
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_NE(missing.err.find(folder.file("absent.json")), std::string::npos);
}

TEST_F(ConvertCommand, DeeplyNestedJsonIsAnInputErrorNotACrash) {
    const auto nested = [](std::size_t levels) {
        return "{\"Pages\": " + std::string(levels, '[') + std::string(levels, ']') + "}";
    };
    auto deep = runCommand({"convert", "--to", "canonical"}, nested(200000));
    EXPECT_EQ(deep.exitCode, 3);
    EXPECT_EQ(deep.err, "ostrin-flow: standard input nests deeper than 64 levels\n");
    EXPECT_TRUE(deep.out.empty());
    auto check = runCommand({"check"}, nested(65));
    EXPECT_EQ(check.exitCode, 3);
    EXPECT_EQ(check.err, "ostrin-flow: standard input nests deeper than 64 levels\n");
    auto shallow = runCommand({"convert", "--to", "internal"}, nested(64));
    EXPECT_EQ(shallow.exitCode, 0) << shallow.err;
}

TEST_F(ConvertCommand, MissingOrUnknownDirectionIsAUsageError) {
    for (const auto& [arguments, message] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"convert"}, "convert needs --to"},
             {{"convert", "--to", "press"}, "not \"press\""},
             {{"convert", "--to", "internal", "a.json", "b.json"}, ""}}) {
        auto result = runCommand(arguments, "{}");
        EXPECT_EQ(result.exitCode, 2) << message;
        EXPECT_NE(result.err.find(message), std::string::npos) << result.err;
    }
}

TEST_F(ConvertCommand, PasswordsGoThroughTheBundlesEncodingLibraryElseAreWrittenEmpty) {
    const std::string bundle = folder.file("Press.bundle");
    std::filesystem::create_directories(bundle + "/Contents/Resources");
    PlistIO::writeFile(bundle + "/Contents/Info.plist", PlistDictionary{{"CFBundleName", "OstrinFlow"}});
    auto bare = runCommand({"--resources", bundle, "convert", "--to", "canonical"}, R"({"AuthJobPassword": "pw"})");
    ASSERT_EQ(bare.exitCode, 0) << bare.err;
    EXPECT_EQ(Json::parse(bare.out)["AuthJobPassword"], "");
    EXPECT_EQ(bare.err, "ostrin-flow: warning: no encoding library in " + bundle + "; passwords are written empty\n");
    EXPECT_EQ(runCommand({"--resources", bundle, "convert", "--to", "canonical"}, R"({"AuthJobPassword": ""})").err, "");

    std::filesystem::copy_file(std::string(OSTRIN_STAND_IN_ENCRYPTION_FOLDER) + "/libencryption.so",
                               bundle + "/Contents/Resources/libencryption.so");
    auto press = runCommand({"--resources", bundle, "convert", "--to", "canonical"}, R"({"SecPrintPassword": "1234"})");
    ASSERT_EQ(press.exitCode, 0) << press.err;
    EXPECT_EQ(Json::parse(press.out)["SecPrintPassword"], "31323334");
    EXPECT_EQ(press.err, "");
    auto panes = runCommand({"--resources", bundle, "convert", "--to", "internal"}, R"({"RscPassword": "31323334"})");
    ASSERT_EQ(panes.exitCode, 0) << panes.err;
    EXPECT_EQ(Json::parse(panes.out)["RscPassword"], "1234");
}

// A size record in cep; names are exact, and Custom and NoChange have none.
TEST(PaperSizeCommand, PrintsTheSizeRecordOfAKnownName) {
    auto result = runCommand({"paper-size", "A4LEF"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out, "{\n  \"typeNum\": \"2\",\n  \"height\": \"119056\",\n  \"width\": \"168378\"\n}\n");
    for (const char* name : {"a4lef", "Custom", "NoChange"}) {
        auto unknown = runCommand({"paper-size", name});
        EXPECT_EQ(unknown.exitCode, 3) << name;
        EXPECT_EQ(unknown.err, "ostrin-flow: unknown paper size \"" + std::string(name) + "\"\n");
        EXPECT_TRUE(unknown.out.empty());
    }
    EXPECT_EQ(runCommand({"paper-size"}).exitCode, 2);
}
