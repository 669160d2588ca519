#include "DialogWindowSupport.h"

#include <cstdlib>
#include <filesystem>

#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteTestSupport.h"

namespace QtDialogTest {

void DialogWindowTest::SetUp() {
    OstrinTest::useProductStrings("en");
    ::setenv("XDG_CONFIG_HOME", _home.file("config").c_str(), 1);
    ::setenv("XDG_DATA_HOME", _home.file("data").c_str(), 1);
    install();
}

void DialogWindowTest::TearDown() {
    _dialogs.reset();
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("XDG_DATA_HOME");
    SetNSBundleForPrincipalBundle(nullptr);
    SetNSBundleForLocalizedString(nullptr);
}

void DialogWindowTest::install(std::shared_ptr<PaneTreeResolver> resolver) {
    _dialogs.reset();
    _dialogs = std::make_unique<QtDialogs>(nullptr, std::move(resolver));
}

void DialogWindowTest::writeFavorite(const std::string& path, const std::string& comment,
                                     const PlistDictionary& options) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    FavoriteFile favorite;
    favorite.setComment(comment);
    favorite.setOptions(options);
    favorite.writeToFile(path);
}

}  // namespace QtDialogTest
