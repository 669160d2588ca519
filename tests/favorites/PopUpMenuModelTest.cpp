#include <gtest/gtest.h>

#include "favorites/PopUpMenuModel.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

PopUpMenuModel threeItems() {
    PopUpMenuModel popup;
    popup.addItem("Default", "", "");
    popup.addSeparator();
    popup.addItem("Proofs", "/f/Proofs.pqz", "");
    return popup;
}

}  // namespace

TEST(PopUpMenuModel, FindsItemsButNeverSeparators) {
    PopUpMenuModel popup = threeItems();
    EXPECT_EQ(popup.indexOfItemWithTitle("Proofs"), 2);
    EXPECT_EQ(popup.indexOfItemWithTitle(""), PopUpMenuModel::notFound);
    EXPECT_EQ(popup.indexOfItemWithRepresentedObject(""), 0);
    EXPECT_EQ(popup.indexOfItemWithRepresentedObject("/f/x.pqz"), PopUpMenuModel::notFound);
    EXPECT_EQ(popup.itemAtIndex(3), nullptr);
}

TEST(PopUpMenuModel, SelectionFollowsItsItemThroughInsertAndRemove) {
    PopUpMenuModel popup = threeItems();
    popup.selectItemAtIndex(2);
    popup.insertItem({"Changed: Proofs", "/f/Proofs.pqz", "", false}, 2);
    EXPECT_EQ(popup.indexOfSelectedItem(), 3);
    popup.removeItemAtIndex(0);
    EXPECT_EQ(popup.indexOfSelectedItem(), 2);
    EXPECT_EQ(popup.itemAtIndex(2)->title, "Proofs");
    popup.removeItemAtIndex(2);
    EXPECT_EQ(popup.indexOfSelectedItem(), -1);
    // Indexes out of range select, insert and remove nothing in particular.
    popup.removeItemAtIndex(7);
    EXPECT_EQ(popup.numberOfItems(), 2);
    popup.selectItemAtIndex(0);
    popup.selectItemAtIndex(5);
    EXPECT_EQ(popup.indexOfSelectedItem(), -1);
    popup.insertItem({"Last", "", "", false}, 99);
    EXPECT_EQ(popup.itemAtIndex(2)->title, "Last");
    popup.removeAllItems();
    EXPECT_EQ(popup.numberOfItems(), 0);
}
