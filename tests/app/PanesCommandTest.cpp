#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "CommandRunner.h"
#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "panes/PanePlugInMgr.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::runCommand;
using Json = nlohmann::ordered_json;

namespace {

// The defaults the library answers in this process for the product bundle.
Json libraryDefaults() {
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    SetNSBundleForPrincipalBundle(bundle);
    auto manager = std::make_shared<PanePlugInMgr>(bundle);
    manager->loadPlugIns();
    Json defaults = Json::object();
    for (const auto& [key, value] : manager->defaultSettings()) defaults[key] = value.stringOr("?");
    manager.reset();
    SetNSBundleForPrincipalBundle(nullptr);
    return defaults;
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> list;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
        list.push_back(text.substr(start, end - start));
    return list;
}

std::string inconsistentJob() {
    Json job = {{"MailNotifyJobEnd", "True"}, {"MailAddress", ""},         {"SecPrint", true},
                {"UseSpToner", "True"},       {"SpTonerUseMode", "SpBack"}, {"SpTonerPageRangeModeBack", "Appoint"},
                {"SpTonerPageRangeBack", "9-2"}};
    return job.dump();
}

}  // namespace

TEST(DefaultsCommand, PrintsTheCompleteDefaultDictionaryOfAllPanes) {
    auto result = runCommand({"defaults"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json printed = Json::parse(result.out);
    EXPECT_EQ(printed.size(), 169u);
    EXPECT_EQ(printed, libraryDefaults());
    EXPECT_EQ(printed["SpTonerPageRangeModeFront"], "All");
    EXPECT_EQ(printed["ImpositionMode_ImpositionCustomMode"], "Off");
    // The values are the panes' own, whatever the language.
    EXPECT_EQ(Json::parse(runCommand({"--lang", "ja", "defaults"}).out), printed);
}

TEST(DefaultsCommand, ABundleWithoutPanesIsAnInputError) {
    OstrinTest::TemporaryDirectory folder;
    std::filesystem::create_directories(folder.file("Empty.bundle/Contents/Resources"));
    auto result = runCommand({"--resources", folder.file("Empty.bundle"), "defaults"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.err.find("has no pane plug-ins"), std::string::npos) << result.err;
    EXPECT_EQ(runCommand({"--resources", folder.file("None.bundle"), "defaults"}).exitCode, 3);
    EXPECT_EQ(runCommand({"defaults", "extra"}).exitCode, 2);
    EXPECT_EQ(runCommand({"--format", "tsv", "defaults"}).exitCode, 2);
}

TEST(CheckCommand, RefusesWithOneLinePerFailedCheckInCheckOrder) {
    auto defaults = runCommand({"defaults"});
    auto passed = runCommand({"check", "-"}, defaults.out);
    EXPECT_EQ(passed.exitCode, 0) << passed.err;
    EXPECT_EQ(passed.out + passed.err, "");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("job.json");
    OstrinTest::writeFile(path, inconsistentJob());
    auto result = runCommand({"check", path});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(lines(result.err), (std::vector<std::string>{
                                     "Some settings are incomplete:",
                                     "Enter a password for Secure Print.",
                                     "Enter the mail address for the job end notification.",
                                     "The page range for special toner on the back side is not valid.",
                                 }));
    auto german = runCommand({"--lang", "de", "check"}, inconsistentJob());
    EXPECT_EQ(german.exitCode, 1);
    EXPECT_EQ(lines(german.err).size(), 4u);
    EXPECT_EQ(lines(german.err)[1], "Geben Sie ein Kennwort für den geschützten Druck ein.");
    EXPECT_EQ(runCommand({"check", "a.json", "b.json"}).exitCode, 2);
}
