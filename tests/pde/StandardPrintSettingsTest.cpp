#include <gtest/gtest.h>

#include "pde/InMemoryPdeHost.h"
#include "pde/StandardPrintSettings.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

struct StandardSettings : ::testing::Test {
    InMemoryPdeHost host{InMemoryPdeHost::Flavour::WithPpdChangeHook};
    StandardPrintSettings standard{host};
    PrintSettings& settings = *host.printSettings();
};

}  // namespace

// Written as cupsd's words; read back, every word cupsd takes for false is "False".
TEST_F(StandardSettings, CopiesAndCollateAreCupsOptions) {
    standard.setCopies("3");
    standard.setCollate(false);
    EXPECT_EQ(settings.text("copies"), "3");
    EXPECT_EQ(settings.text("collate"), "false");
    EXPECT_EQ(standard.getCopies(), "3");
    EXPECT_EQ(standard.getCollate(), "False");
    standard.setCollate(true);
    EXPECT_EQ(settings.text("collate"), "true");
    EXPECT_EQ(standard.getCollate(), "True");
    settings.setValue("copies", 4);
    EXPECT_EQ(standard.getCopies(), "4");
    for (const char* word : {"false", "No", "OFF"}) {
        settings.setValue("collate", word);
        EXPECT_EQ(standard.getCollate(), "False") << word;
    }
    settings.setValue("collate", "yes");
    EXPECT_EQ(standard.getCollate(), "True");
}

// A job without them prints one collated one-sided copy; duplex is read from the sides, and
// sides cupsd does not know print one-sided.
TEST_F(StandardSettings, DuplexIsReadFromSidesAndAJobWithoutThemPrintsOneCollatedOneSidedCopy) {
    EXPECT_EQ(standard.getCopies(), "1");
    EXPECT_EQ(standard.getCollate(), "True");
    EXPECT_EQ(standard.getDuplex(), "None");
    EXPECT_TRUE(settings.values().empty());
    for (const auto& [sides, duplex] : {std::pair{"two-sided-long-edge", "DuplexNoTumble"},
                                        {"two-sided-short-edge", "DuplexTumble"}, {"one-sided", "None"},
                                        {"sideways", "None"}}) {
        settings.setValue("sides", sides);
        EXPECT_EQ(standard.getDuplex(), duplex) << sides;
    }
}

TEST_F(StandardSettings, SetDuplexNeverChangesSides) {
    standard.setDuplex(std::string("DuplexTumble"));
    EXPECT_EQ(settings.value("sides"), nullptr);
    settings.setValue("sides", "one-sided");
    standard.setDuplex(std::string("DuplexNoTumble"));
    standard.setDuplex(std::nullopt);
    EXPECT_EQ(settings.text("sides"), "one-sided");
}

TEST_F(StandardSettings, HiddenSettingsAreNeitherReadNorWritten) {
    settings.setValue("copies", "2");
    settings.setValue("collate", "false");
    settings.setValue("sides", "two-sided-long-edge");
    standard.setHiddenFlags(true, true, true);
    EXPECT_EQ(standard.getCopies(), std::nullopt);
    EXPECT_EQ(standard.getCollate(), std::nullopt);
    EXPECT_EQ(standard.getDuplex(), std::nullopt);
    standard.setCopies("5");
    standard.setCollate(true);
    EXPECT_EQ(settings.text("copies"), "2");
    EXPECT_EQ(settings.text("collate"), "false");

    standard.setHiddenFlags(false, true, false);
    EXPECT_EQ(standard.getCopies(), "2");
    EXPECT_EQ(standard.getDuplex(), std::nullopt);
}

TEST_F(StandardSettings, TraySlotIsWrittenOnlyWhenGiven) {
    standard.setQVInputSlot(std::string("Tray3"));
    EXPECT_EQ(settings.text("QVInputSlot"), "Tray3");
    standard.setQVInputSlot(std::nullopt);
    EXPECT_EQ(settings.text("QVInputSlot"), "Tray3");
}

TEST_F(StandardSettings, AHostWithoutPrintSettingsAnswersNothing) {
    host.removePrintSettings();
    EXPECT_EQ(standard.getCopies(), std::nullopt);
    EXPECT_EQ(standard.getCollate(), std::nullopt);
    EXPECT_EQ(standard.getDuplex(), std::nullopt);
    standard.setCopies("2");
    standard.setQVInputSlot(std::string("Tray1"));
}
