#include <gtest/gtest.h>

#include <stdexcept>

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "core/SimpleAlert.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Records what the helpers ask, with the product's catalogues in German.
class SimpleAlertTest : public testing::Test {
protected:
    void SetUp() override {
        PreferredLanguages::setFirst("de");
        SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
        Alerts::setPresenter(_presenter);
    }
    void TearDown() override {
        Alerts::setPresenter(nullptr);
        SetNSBundleForLocalizedString(nullptr);
        PreferredLanguages::setFirst("");
    }
    const AlertRequest& asked() const { return _presenter->asked().back(); }

    std::shared_ptr<ScriptedAlertPresenter> _presenter = std::make_shared<ScriptedAlertPresenter>();
};

}  // namespace

TEST_F(SimpleAlertTest, TitleAndTextAreLocalisedAndOnlyOkIsOffered) {
    SimpleAlert("Self Resolve Conflict", "Yes");
    EXPECT_EQ(asked().messageText, "Konflikt selbst lösen");
    EXPECT_EQ(asked().informativeText, "Ja");
    EXPECT_EQ(asked().buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(asked().style, AlertRequest::Style::Informational);
    WarningAlert("No", "Not translated anywhere");
    EXPECT_EQ(asked().messageText, "Nein");
    EXPECT_EQ(asked().informativeText, "Not translated anywhere");
    EXPECT_EQ(asked().style, AlertRequest::Style::Warning);
}

TEST_F(SimpleAlertTest, ExceptionsAndObjectsShowAsGivenAndWithoutCataloguesTheKeysAreShown) {
    ExceptionAlert("No", std::runtime_error("disk full"));
    EXPECT_EQ(asked().messageText, "Nein");
    EXPECT_EQ(asked().informativeText, "disk full");
    EXPECT_EQ(asked().style, AlertRequest::Style::Critical);
    SimpleAlertObject("Yes", "No");
    EXPECT_EQ(asked().messageText, "Ja");
    EXPECT_EQ(asked().informativeText, "No");
    SetNSBundleForLocalizedString(nullptr);
    SimpleAlert("Self Resolve Conflict", "Yes");
    EXPECT_EQ(asked().messageText, "Self Resolve Conflict");
    EXPECT_EQ(asked().informativeText, "Yes");
    EXPECT_EQ(asked().buttons, (std::vector<std::string>{"OK"}));
    EXPECT_EQ(_presenter->asked().size(), 3u);
}
