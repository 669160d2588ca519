// The extension bundle with one of its resource files missing or damaged: every command
// answers the fallback or exits with one line naming the input, never with a crash or a
// hang. Each case runs the real command over a copy of the product bundle.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "CommandRunner.h"
#include "TestSupport.h"

namespace fs = std::filesystem;
using OstrinTest::CommandResult;
using OstrinTest::runCommand;

namespace {

enum class Damage { Missing, Truncated, WrongKind, Garbage };

const char* nameOf(Damage damage) {
    constexpr const char* Names[] = {"missing", "truncated", "an array", "garbage"};
    return Names[static_cast<int>(damage)];
}

constexpr Damage EveryDamage[] = {Damage::Missing, Damage::Truncated, Damage::WrongKind, Damage::Garbage};

// A copy of the product bundle with one resource damaged, and a private configuration.
class DamagedBundle {
public:
    DamagedBundle(const std::string& resource, Damage damage) {
        fs::copy(OSTRIN_BUILD_BUNDLE_DIR, bundle(), fs::copy_options::recursive);
        const std::string path = bundle() + "/Contents/" + resource;
        const std::string text = OstrinTest::readFile(path);
        switch (damage) {
            case Damage::Missing: fs::remove(path); break;
            case Damage::Truncated: OstrinTest::writeFile(path, text.substr(0, text.size() / 2)); break;
            case Damage::WrongKind:
                OstrinTest::writeFile(path, "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><string>"
                                            "x</string></array></plist>");
                break;
            case Damage::Garbage: OstrinTest::writeFile(path, std::string("bplist00\xff\x00\x13\x37", 12)); break;
        }
        OstrinTest::writeFile(_home.file("job.json"), R"({"StapleMode": "Saddle", "MailNotifyJobEnd": "False"})");
    }

    std::string bundle() const { return _home.file("OstrinFlow.bundle"); }

    CommandResult run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--resources", bundle(), "--lang", "en"});
        for (std::string& argument : arguments)
            if (argument == "JOB") argument = _home.file("job.json");
        return runCommand(arguments, {},
                          {"XDG_CONFIG_HOME=" + _home.file("config"), "XDG_DATA_HOME=" + _home.file("data")});
    }

private:
    OstrinTest::TemporaryDirectory _home;
};

// A clean exit (success, refused settings or an input error), and for a failure one line
// that begins with the command's name.
void expectCleanAnswer(const CommandResult& result, const std::string& what) {
    EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 1 || result.exitCode == 3)
        << what << ": exit " << result.exitCode << "\n" << result.err;
    if (result.exitCode == 3) {
        EXPECT_EQ(result.err.rfind("ostrin-flow: ", 0), 0u) << what << ": " << result.err;
        EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << what << ": " << result.err;
    }
}

const std::vector<std::vector<std::string>> EveryCommand = {
    {"defaults"}, {"check", "JOB"}, {"convert", "--to", "canonical", "JOB"}, {"convert", "--to", "ppd-format", "JOB"},
    {"ppd"},      {"favorites", "list"}};

void expectEveryCommandAnswersCleanly(const std::string& resource) {
    for (Damage damage : EveryDamage) {
        DamagedBundle damaged(resource, damage);
        for (const auto& command : EveryCommand) {
            std::string what = resource + " " + nameOf(damage) + ":";
            for (const std::string& word : command) what += " " + word;
            expectCleanAnswer(damaged.run(command), what);
        }
    }
}

}  // namespace

TEST(ResourceFilesFailure, DamagedResourceNeverCrashesACommand) {
    for (const char* resource : {"Resources/OstrinFlowUI.plist", "Resources/PanesTree.plist",
                                 "Resources/ConvertTable.plist", "Resources/miscellaneous.plist", "Info.plist"})
        expectEveryCommandAnswersCleanly(resource);
}

// Without the tree no pane knows its side: each loads once, under its bundle's name.
TEST(ResourceFilesFailure, WithoutThePaneTreeEveryPaneStillLoadsOnce) {
    const CommandResult intact = runCommand({"defaults"});
    ASSERT_EQ(intact.exitCode, 0);
    const auto everySetting = nlohmann::json::parse(intact.out);
    DamagedBundle damaged("Resources/PanesTree.plist", Damage::Truncated);
    const CommandResult result = damaged.run({"defaults"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const auto settings = nlohmann::json::parse(result.out);
    EXPECT_GT(settings.size(), everySetting.size() / 2);
    EXPECT_LT(settings.size(), everySetting.size());
    for (const auto& [key, value] : settings.items()) EXPECT_EQ(everySetting.value(key, nlohmann::json()), value) << key;
}

// A resource a command cannot do without is an input error naming the bundle, never empty
// defaults, an identity conversion or a folder elsewhere.
TEST(ResourceFilesFailure, CommandsNeedingADamagedResourceAreInputErrors) {
    const struct {
        std::vector<const char*> resources;
        std::vector<Damage> damages;
        std::vector<std::string> command;
        std::string message;  // after the bundle's path
    } cases[] = {
        {{"Resources/OstrinFlowUI.plist", "Info.plist"}, {Damage::Missing, Damage::Truncated}, {"defaults"},
         " has no settings: its UI description is missing or unreadable"},
        {{"Resources/ConvertTable.plist", "Resources/miscellaneous.plist"}, {std::begin(EveryDamage), std::end(EveryDamage)},
         {"convert", "--to", "ppd-format", "JOB"}, " has no keyword conversion table"},
        {{"Resources/miscellaneous.plist"}, {std::begin(EveryDamage), std::end(EveryDamage)}, {"favorites", "list"},
         ": no extension bundle naming the favorites folder"},
    };
    for (const auto& probe : cases)
        for (const char* resource : probe.resources)
            for (Damage damage : probe.damages) {
                DamagedBundle damaged(resource, damage);
                const CommandResult result = damaged.run(probe.command);
                EXPECT_EQ(result.exitCode, 3) << resource << " " << nameOf(damage);
                EXPECT_EQ(result.out, "");
                const std::string prefix = probe.command[0] == "favorites" ? "" : "the extension bundle ";
                EXPECT_EQ(result.err, "ostrin-flow: " + prefix + damaged.bundle() + probe.message + "\n");
            }
}
