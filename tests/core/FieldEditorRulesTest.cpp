#include <gtest/gtest.h>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/MailAddressFormatter.h"
#include "core/NoEmptyTextRule.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(NoEmptyTextRule, ABlankEditGivesBackTheTextFromBeforeIt) {
    NoEmptyTextRule rule;
    rule.beginEditing("Proof run");
    EXPECT_EQ(rule.endEditing("").text, "Proof run");
    EXPECT_TRUE(rule.endEditing("").restored);
    EXPECT_EQ(rule.endEditing(" \t ").text, "Proof run");
    const auto kept = rule.endEditing(" Final run");
    EXPECT_EQ(kept.text, " Final run");
    EXPECT_FALSE(kept.restored);
}

TEST(NoEmptyTextRule, AFieldThatWasBlankMayStayBlank) {
    NoEmptyTextRule rule;
    EXPECT_FALSE(rule.endEditing("").restored);
    rule.beginEditing("  ");
    const auto outcome = rule.endEditing("");
    EXPECT_EQ(outcome.text, "");
    EXPECT_FALSE(outcome.restored);
}

TEST(MailAddressFieldFormatter, LimitsTypingAndNamesTheProblemInTheUsersLanguage) {
    const auto withoutCatalogue = MailAddressFormatter::mailAddressFieldFormatter();
    EXPECT_EQ(withoutCatalogue->messageString(), "Alert_InvalidMailAddress");
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    PreferredLanguages::setFirst("de");
    const auto formatter = MailAddressFormatter::mailAddressFieldFormatter();
    PreferredLanguages::setFirst("en");
    SetNSBundleForLocalizedString(nullptr);
    EXPECT_EQ(formatter->messageString().rfind("Geben Sie eine oder mehrere E-Mail-Adressen", 0), 0u);
    EXPECT_FALSE(formatter->didChange("op\xC3\xA4", {3, 0}).accepted);
    EXPECT_FALSE(formatter->didChange(std::string(129, 'a'), {129, 0}).accepted);
    EXPECT_TRUE(formatter->didChange(std::string(128, 'a'), {128, 0}).accepted);
    const auto refused = formatter->controlTextShouldEndEditing("x; op@press.example", {"Mail Address", true});
    EXPECT_FALSE(refused.shouldEndEditing);
    EXPECT_EQ(refused.message, formatter->messageString());
    EXPECT_TRUE(formatter->controlTextShouldEndEditing("op@press.example", {"Mail Address", true}).shouldEndEditing);
}
