#include <gtest/gtest.h>

#include "SettingsTestSupport.h"

using namespace SettingsTest;

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

// Anonymous observers hear every post of their name; an observer of one sender only its
// posts. Only the full form of a post names its sender.
TEST(NotifyUnit, PostsReachObserversOfTheNameAndSenderWithTheirUserInformation) {
    std::vector<Notification> received;
    int observer = 0;
    int sender = 0;
    int other = 0;
    NotifyUnit::addObserver(&observer, [&](const Notification& notification) { received.push_back(notification); },
                            "OutputTray");
    Listener ofSender;
    ofSender.listen("OutputTray", &sender);
    NotifyUnit::postNotificationName("OutputTray", &sender);
    NotifyUnit::postNotificationName("OutputTray", &sender, PlistDictionary{{"Paramater", "Toptray"}});
    NotifyUnit::postNotificationName("OutputTray", PlistDictionary{{"isCollectiveChange", "True"}}, 1u);
    NotifyUnit::postNotificationName("OutputTray", &other, PlistDictionary{});
    NotifyUnit::postNotificationName("Fold");
    NotifyUnit::removeObserver(&observer);
    ASSERT_EQ(received.size(), 4u);
    EXPECT_EQ(received[0].object, nullptr);
    EXPECT_FALSE(received[0].userInfo);
    EXPECT_EQ(received[1].object, &sender);
    EXPECT_EQ(received[1].userInfo->stringFor("Paramater", ""), "Toptray");
    EXPECT_EQ(received[2].userInfo->stringFor("isCollectiveChange", ""), "True");
    EXPECT_EQ(ofSender.heard.size(), 1u);
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

