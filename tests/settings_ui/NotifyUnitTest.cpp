#include <gtest/gtest.h>

#include "SettingsTestSupport.h"
#include "settings_ui/NotifyUnit.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

struct Listener {
    std::vector<std::string> heard;
    void listen(std::string_view name, const void* object = nullptr) {
        NotifyUnit::addObserver(this, [this](const Notification& notification) { heard.push_back(notification.name); },
                                name, object);
    }
    ~Listener() { NotifyUnit::removeObserver(this); }
};

}  // namespace

TEST(NotifyUnit, AnonymousPostsReachObserversOfTheNameOnly) {
    Listener listener;
    listener.listen("StapleMode");
    int sender = 0;
    NotifyUnit::postNotificationName("StapleMode", &sender);
    NotifyUnit::postNotificationName("StapleMode", PlistDictionary{{"Paramater", "Saddle"}});
    NotifyUnit::postNotificationName("Fold");
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"StapleMode", "StapleMode"}));
    EXPECT_EQ(NotifyUnit::keyNameWithName("Punch_PunchHoles"), "Punch_PunchHoles");
}

TEST(NotifyUnit, PassesUserInformationAndOnlyTheFullFormNamesItsSender) {
    std::vector<Notification> received;
    int observer = 0;
    int sender = 0;
    NotifyUnit::addObserver(&observer, [&](const Notification& notification) { received.push_back(notification); },
                            "OutputTray");
    NotifyUnit::postNotificationName("OutputTray", &sender);
    NotifyUnit::postNotificationName("OutputTray", &sender, PlistDictionary{{"Paramater", "Toptray"}});
    NotifyUnit::postNotificationName("OutputTray", PlistDictionary{{"isCollectiveChange", "True"}}, 1u);
    NotifyUnit::removeObserver(&observer);
    ASSERT_EQ(received.size(), 3u);
    EXPECT_EQ(received[0].object, nullptr);
    EXPECT_FALSE(received[0].userInfo);
    EXPECT_EQ(received[1].object, &sender);
    EXPECT_EQ(received[1].userInfo->stringFor("Paramater", ""), "Toptray");
    EXPECT_EQ(received[2].userInfo->stringFor("isCollectiveChange", ""), "True");
}

TEST(NotifyUnit, ObserverOfOneSenderIgnoresOthers) {
    int chosen = 0;
    int other = 0;
    Listener listener;
    listener.listen("ColorMode", &chosen);
    NotifyUnit::postNotificationName("ColorMode", &other, PlistDictionary{});
    NotifyUnit::postNotificationName("ColorMode", &chosen, PlistDictionary{});
    NotifyUnit::postNotificationName("ColorMode");
    EXPECT_EQ(listener.heard.size(), 1u);
}

TEST(NotifyUnit, RemovesOneNameOrEveryName) {
    Listener listener;
    listener.listen("DuplexMode");
    listener.listen("Fold");
    listener.listen("OutputTray");
    NotifyUnit::removeObserver(&listener, "Fold");
    NotifyUnit::postNotificationName("Fold");
    NotifyUnit::postNotificationName("DuplexMode");
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"DuplexMode"}));
    EXPECT_EQ(NotificationCenter::defaultCenter().observationCount(&listener), 2u);
    NotifyUnit::removeObserver(&listener);
    EXPECT_EQ(NotificationCenter::defaultCenter().observationCount(&listener), 0u);
    NotifyUnit::postNotificationName("DuplexMode");
    NotifyUnit::postNotificationName("OutputTray");
    EXPECT_EQ(listener.heard.size(), 1u);
}

TEST(NotifyUnit, HandlersMayPostAndRemoveObserversWhileDelivering) {
    std::vector<std::string> order;
    int first = 0;
    int second = 0;
    NotifyUnit::addObserver(&first, [&](const Notification&) {
        order.push_back("first");
        NotifyUnit::removeObserver(&second);
        NotifyUnit::postNotificationName("Nested");
    }, "Outer");
    NotifyUnit::addObserver(&second, [&](const Notification&) { order.push_back("second"); }, "Outer");
    NotifyUnit::addObserver(&first, [&](const Notification&) { order.push_back("nested"); }, "Nested");
    NotifyUnit::postNotificationName("Outer");
    NotifyUnit::removeObserver(&first);
    EXPECT_EQ(order, (std::vector<std::string>{"first", "nested"}));
}

TEST(NotifyUnit, ReachesTheRuleEngineFromAnyControl) {
    SettingsTest::AlertScript alerts;
    auto manager = SettingsTest::managerWith({"OutputTray", "OffsetMode"});
    auto control = manager->controlsOf("OutputTray")->front();
    control->selectItemAtIndex(1);
    control->popupButtonAction();
    EXPECT_FALSE(manager->controlsOf("OffsetMode")->front()->isEnabled());
}
