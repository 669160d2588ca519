#include <gtest/gtest.h>

#include "pde/InMemoryPdeHost.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/StandardPrintSettings.h"
#include "pde/TicketValueEscaping.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

using Flavour = InMemoryPdeHost::Flavour;
constexpr int ParamErr = -50;
const std::string DuplexingKey = "com.apple.print.PrintSettings.PMDuplexing";

std::optional<std::string> stored(InMemoryPdeHost& host, const std::string& key) {
    const PlistValue* value = host.printSettings()->value(key);
    return value && value->string() ? std::optional<std::string>(*value->string()) : std::nullopt;
}

struct StandardSettings : ::testing::Test {
    InMemoryPdeHost host{InMemoryPdeHost::Flavour::WithPpdChangeHook};
    StandardPrintSettings standard{host};
    PrintSettings& settings = *host.printSettings();
};

}  // namespace

TEST(TicketPrimitives, BothBackEndsKeepTheEscapedValueAndAnswerItAsStored) {
    InMemoryPdeHost host(Flavour::WithPpdChangeHook);
    PrintSettingsTicket ticket(host);
    EXPECT_TRUE(ticket.useConstraintHandling());
    EXPECT_EQ(ticket._ticketSetString("Note", std::string("50%, it's")), 0);
    EXPECT_EQ(stored(host, "Note"), "50%x25%x2C it%x27s");
    std::optional<std::string> value;
    EXPECT_EQ(ticket._ticketGetString("Note", value), 0);
    EXPECT_EQ(value, "50%x25%x2C it%x27s");

    InMemoryPdeHost legacyHost(Flavour::WithoutPpdChangeHook);
    PrintSettingsTicket legacy(legacyHost);
    EXPECT_FALSE(legacy.useConstraintHandling());
    EXPECT_EQ(legacy._ticketSetString("Note", std::string("a,b")), 0);
    EXPECT_EQ(legacyHost.legacyTicket()->string("Note"), "a%x2Cb");
    EXPECT_EQ(legacyHost.legacyTicket()->clientIdentifier("Note"), "com.quorvant.velmar.print.pde.main");
    EXPECT_EQ(legacyHost.printSettings()->value("Note"), nullptr);
    EXPECT_EQ(legacy._ticketGetString("Note", value), 0);
    EXPECT_EQ(value, "a%x2Cb");
}

TEST(TicketPrimitives, SetWithoutValueRemovesFromThePrintSettingsOnly) {
    InMemoryPdeHost host(Flavour::WithPpdChangeHook);
    PrintSettingsTicket ticket(host);
    ASSERT_EQ(ticket._ticketSetString("Note", std::string("x")), 0);
    EXPECT_EQ(ticket._ticketSetString("Note", std::nullopt), 0);
    EXPECT_EQ(host.printSettings()->value("Note"), nullptr);
    std::optional<std::string> value = "left over";
    EXPECT_EQ(ticket._ticketGetString("Note", value), ParamErr);
    EXPECT_EQ(value, std::nullopt);

    InMemoryPdeHost legacyHost(Flavour::WithoutPpdChangeHook);
    PrintSettingsTicket legacy(legacyHost);
    ASSERT_EQ(legacy._ticketSetString("Note", std::string("kept")), 0);
    EXPECT_EQ(legacy._ticketSetString("Note", std::nullopt), ParamErr);
    EXPECT_EQ(legacyHost.legacyTicket()->string("Note"), "kept");
}

TEST(TicketPrimitives, MissingPiecesAnswerParamErr) {
    InMemoryPdeHost withHook(Flavour::WithPpdChangeHook);
    PrintSettingsTicket settingsTicket(withHook);
    std::optional<std::string> value;
    std::int32_t number = 0;
    EXPECT_EQ(settingsTicket._ticketGetString("", value), ParamErr);
    EXPECT_EQ(settingsTicket._ticketSetString("", std::string("x")), ParamErr);
    EXPECT_EQ(settingsTicket._ticketGetSInt32("", number), ParamErr);
    EXPECT_EQ(settingsTicket._ticketGetString("Absent", value), ParamErr);
    withHook.printSettings()->setValue("Text", "7");
    EXPECT_EQ(settingsTicket._ticketGetSInt32("Text", number), ParamErr);
    withHook.printSettings()->setValue("Number", 7);
    EXPECT_EQ(settingsTicket._ticketGetString("Number", value), ParamErr);

    withHook.removePrintSettings();
    EXPECT_EQ(settingsTicket._ticketSetString("Note", std::string("x")), ParamErr);
    EXPECT_EQ(settingsTicket._ticketGetString("Number", value), ParamErr);
    EXPECT_EQ(settingsTicket._ticketGetSInt32("Number", number), ParamErr);

    InMemoryPdeHost withoutHook(Flavour::WithoutPpdChangeHook);
    PrintSettingsTicket legacy(withoutHook);
    withoutHook.legacyTicket()->setSInt32("someone", "Number", 3);
    EXPECT_EQ(legacy._ticketGetString("Number", value), ParamErr);
    withoutHook.removeLegacyTicket();
    EXPECT_EQ(legacy._ticketSetString("Note", std::string("x")), ParamErr);
    EXPECT_EQ(legacy._ticketGetSInt32("Number", number), ParamErr);
    EXPECT_EQ(number, 0);
}

TEST(TicketPrimitives, CustomEntriesLiveUnderThePrefixedKey) {
    InMemoryPdeHost host(Flavour::WithPpdChangeHook);
    PrintSettingsTicket ticket(host);
    EXPECT_EQ(ticket._customTicketSetString("JobName", std::string("Report")), 0);
    EXPECT_EQ(stored(host, "com.quorvant.velmar.print.PrintSettingsTicket.JobName"), "Report");
    std::optional<std::string> value;
    EXPECT_EQ(ticket._customTicketGetString("JobName", value), 0);
    EXPECT_EQ(value, "Report");
    EXPECT_EQ(ticket._customTicketSetString("JobName", std::nullopt), 0);
    EXPECT_TRUE(host.printSettings()->values().empty());

    EXPECT_EQ(ticket._customTicketSetString("", std::string("x")), 0);
    EXPECT_TRUE(host.printSettings()->values().empty());
    value = "untouched";
    EXPECT_EQ(ticket._customTicketGetString("", value), 0);
    EXPECT_EQ(value, "untouched");
}

TEST(TicketPrimitives, SInt32ReadsOnlyNumbersThatFit) {
    InMemoryPdeHost host(Flavour::WithPpdChangeHook);
    PrintSettingsTicket ticket(host);
    PrintSettings& settings = *host.printSettings();
    settings.setValue("Small", -12);
    settings.setValue("Real", 2.9);
    settings.setValue("Huge", std::int64_t{1} << 40);
    std::int32_t number = 99;
    EXPECT_EQ(ticket._ticketGetSInt32("Small", number), 0);
    EXPECT_EQ(number, -12);
    EXPECT_EQ(ticket._ticketGetSInt32("Real", number), 0);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(ticket._ticketGetSInt32("Huge", number), ParamErr);
    EXPECT_EQ(number, 2);

    InMemoryPdeHost legacyHost(Flavour::WithoutPpdChangeHook);
    legacyHost.legacyTicket()->setSInt32("someone", "Count", 5);
    EXPECT_EQ(PrintSettingsTicket(legacyHost)._ticketGetSInt32("Count", number), 0);
    EXPECT_EQ(number, 5);
}

TEST(TicketPrimitives, DuplexingIsTheNumberOfSidesOnBothBackEnds) {
    for (Flavour flavour : {Flavour::WithPpdChangeHook, Flavour::WithoutPpdChangeHook}) {
        InMemoryPdeHost host(flavour);
        PrintSettingsTicket ticket(host);
        std::int32_t number = 0;
        EXPECT_EQ(ticket._ticketGetSInt32(DuplexingKey, number), ParamErr);
        for (const auto& [sides, expected] : {std::pair{"one-sided", 1}, {"two-sided-long-edge", 2},
                                              {"two-sided-short-edge", 3}}) {
            host.printSettings()->setValue("sides", sides);
            EXPECT_EQ(ticket._ticketGetSInt32(DuplexingKey, number), 0) << sides;
            EXPECT_EQ(number, expected) << sides;
        }
        host.printSettings()->setValue("sides", "both-ways");
        EXPECT_EQ(ticket._ticketGetSInt32(DuplexingKey, number), ParamErr);
    }
    // The legacy ticket's own duplexing number is never read: the sides decide.
    InMemoryPdeHost host(Flavour::WithoutPpdChangeHook);
    host.legacyTicket()->setSInt32("system", DuplexingKey, 2);
    std::int32_t number = 0;
    EXPECT_EQ(PrintSettingsTicket(host)._ticketGetSInt32(DuplexingKey, number), ParamErr);
}

// "%" goes first, then "'", then ","; decoding goes in the same order, so a stored "%x25x27"
// comes back as an apostrophe (stored tickets depend on it). Other values come back as they were.
TEST(TicketValueEscaping, EscapesAndDecodesPercentFirst) {
    EXPECT_EQ(TicketValueEscaping::escape("%',"), "%x25%x27%x2C");
    EXPECT_EQ(TicketValueEscaping::escape("O'Neil, 100%"), "O%x27Neil%x2C 100%x25");
    EXPECT_EQ(TicketValueEscaping::escape("plain text"), "plain text");
    for (const char* value : {"O'Neil, 100%", "%%,,''", "a%b'c,d", "%x2", "Grüße, 'Ä'", ""})
        EXPECT_EQ(TicketValueEscaping::unescape(TicketValueEscaping::escape(value)), value);
    EXPECT_EQ(TicketValueEscaping::escape("%x27"), "%x25x27");
    EXPECT_EQ(TicketValueEscaping::unescape("%x25x27"), "'");
    EXPECT_EQ(TicketValueEscaping::unescape(TicketValueEscaping::escape("%x2C")), ",");
    EXPECT_EQ(TicketValueEscaping::unescape("%x25x25"), "%x25");
}

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

TEST_F(StandardSettings, SetDuplexNeverChangesSidesAndNoTraySlotKeepsTheTray) {
    standard.setDuplex(std::string("DuplexTumble"));
    EXPECT_EQ(settings.value("sides"), nullptr);
    settings.setValue("sides", "one-sided");
    standard.setDuplex(std::string("DuplexNoTumble"));
    standard.setDuplex(std::nullopt);
    EXPECT_EQ(settings.text("sides"), "one-sided");
    standard.setQVInputSlot(std::string("Tray3"));
    EXPECT_EQ(settings.text("QVInputSlot"), "Tray3");
    standard.setQVInputSlot(std::nullopt);
    EXPECT_EQ(settings.text("QVInputSlot"), "Tray3");
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

TEST_F(StandardSettings, AHostWithoutPrintSettingsAnswersNothing) {
    host.removePrintSettings();
    EXPECT_EQ(standard.getCopies(), std::nullopt);
    EXPECT_EQ(standard.getCollate(), std::nullopt);
    EXPECT_EQ(standard.getDuplex(), std::nullopt);
    standard.setCopies("2");
    standard.setQVInputSlot(std::string("Tray1"));
}
