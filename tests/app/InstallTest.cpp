#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>

#include "TestSupport.h"

using OstrinTest::runShell;
namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& text) { return "'" + text + "'"; }

bool sameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    return fs::equivalent(a, b, error);
}

}  // namespace

// Installs the build into a fresh prefix and runs the installed command from there: its
// library and bundle must come from the prefix, never from the build tree.
TEST(Installation, InstalledCommandRunsFromItsPrefix) {
    OstrinTest::TemporaryDirectory prefix;
    auto install = runShell("cmake --install " + quoted(OSTRIN_BUILD_DIR) + " --prefix " +
                            quoted(prefix.path()));
    ASSERT_EQ(install.exitCode, 0) << install.output;

    const std::string libdir = prefix.file(OSTRIN_INSTALL_LIBDIR);
    const std::string bundle = prefix.file("share/ostrin-flow/OstrinFlow.bundle");
    EXPECT_TRUE(fs::is_regular_file(prefix.file("bin/ostrin-flow")));
    EXPECT_TRUE(fs::exists(libdir + "/libostrinflow.so"));
    EXPECT_TRUE(fs::exists(libdir + "/libostrinflow.so.0"));
    EXPECT_TRUE(fs::is_regular_file(prefix.file("include/ostrinflow/ppd/PpdFile.h")));
    EXPECT_TRUE(fs::is_regular_file(prefix.file("include/ostrinflow/core/PlistValue.h")));
    EXPECT_FALSE(fs::exists(prefix.file("include/ostrinflow/ppd/PpdText_p.h")));
    EXPECT_TRUE(fs::is_regular_file(bundle + "/Contents/Info.plist"));
    const std::string installedPpd = bundle + "/Contents/Resources/OstrinFlow.ppd";
    ASSERT_TRUE(fs::is_regular_file(installedPpd));

    // A product name only the installed copy carries shows which bundle the command read.
    std::string ppd = OstrinTest::readFile(installedPpd);
    const std::string product = "*Product: \"(Quorvant Ostrin Flow)\"";
    ASSERT_NE(ppd.find(product), std::string::npos);
    ppd.replace(ppd.find(product), product.size(), "*Product: \"(Installed Ostrin Flow)\"");
    OstrinTest::writeFile(installedPpd, ppd);

    auto listing = runShell("env -u LD_LIBRARY_PATH " + quoted(prefix.file("bin/ostrin-flow")) +
                            " ppd --format json 2>/dev/null");
    ASSERT_EQ(listing.exitCode, 0) << listing.output;
    EXPECT_EQ(nlohmann::json::parse(listing.output)["product"], "(Installed Ostrin Flow)");

    // The pane bundles come along, the imposition pane with its own code.
    EXPECT_TRUE(fs::is_regular_file(bundle + "/Contents/PlugIns/Layout.bundle/Contents/Linux/Layout.so"));
    auto defaults = runShell("env -u LD_LIBRARY_PATH " + quoted(prefix.file("bin/ostrin-flow")) +
                             " defaults 2>/dev/null");
    ASSERT_EQ(defaults.exitCode, 0) << defaults.output;
    EXPECT_EQ(nlohmann::json::parse(defaults.output)["ImpositionMode_ImpositionCustomMode"], "Off");

    auto libraries = runShell("ldd " + quoted(prefix.file("bin/ostrin-flow")));
    const std::string line = libraries.output.substr(libraries.output.find("libostrinflow.so"));
    const std::string resolved = line.substr(line.find("=> ") + 3, line.find(" (") - line.find("=> ") - 3);
    EXPECT_TRUE(sameFile(resolved, libdir + "/libostrinflow.so.0")) << libraries.output;
    EXPECT_EQ(libraries.output.find("libQt6"), std::string::npos) << libraries.output;

    // gui hands over to the installed window program: only that program knows it needs a display.
    auto gui = runShell("env -u LD_LIBRARY_PATH -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " +
                        quoted(prefix.file("bin/ostrin-flow")) + " gui 2>&1");
    EXPECT_EQ(gui.exitCode, 2);
    EXPECT_NE(gui.output.find("gui needs a display"), std::string::npos) << gui.output;
    auto guiLibraries = runShell("ldd " + quoted(prefix.file("libexec/ostrin-flow/ostrin-flow-gui")));
    EXPECT_EQ(guiLibraries.output.find("not found"), std::string::npos) << guiLibraries.output;

    const std::string pkgConfig = "PKG_CONFIG_PATH=" + quoted(libdir + "/pkgconfig") + " pkg-config ";
    auto includes = runShell(pkgConfig + "--variable=includedir ostrinflow");
    ASSERT_EQ(includes.exitCode, 0) << includes.output;
    EXPECT_TRUE(sameFile(includes.output.substr(0, includes.output.find('\n')),
                         prefix.file("include/ostrinflow")))
        << includes.output;
    auto libraryFolder = runShell(pkgConfig + "--variable=libdir ostrinflow");
    EXPECT_TRUE(sameFile(libraryFolder.output.substr(0, libraryFolder.output.find('\n')), libdir))
        << libraryFolder.output;
}
