#include "TargetKinds.h"

namespace soak {
namespace {

// Without winefile, which in Wine renumbers windows of other programs when it ends.
constexpr TargetKind kKinds[] = {
    {"notepad", Source::kSystem, "notepad.exe", false},
    {"regedit", Source::kSystem, "regedit.exe", false},
    {"winecfg", Source::kSystem, "winecfg.exe", false},
    {"taskmgr", Source::kSystem, "taskmgr.exe", false},
    {"winver", Source::kSystem, "winver.exe", false},
    {"uninstaller", Source::kSystem, "uninstaller.exe", false},
    {"control panel", Source::kSystem, "control.exe", false},
    {"object viewer", Source::kSystem, "oleview.exe", false},
    {"installer, licence", Source::kInstaller, "licence", false},
    {"installer, components", Source::kInstaller, "components", false},
    {"installer, choices", Source::kInstaller, "choices", false},
    {"installer, log", Source::kInstaller, "log", false},
    {"controls", Source::kFixture,
     "title=題名 edit=文字列 button=押す static=名札 memo=一行目\\n二行目 disabled=無効 leaf=葉",
     false},
    {"tool tip", Source::kFixture, "title=tip blank= tip=ヒントの文", false},
    {"list box", Source::kLists, "listbox=many:300", false},
    {"list box, slow", Source::kLists, "behave=slow listbox=many:20", false},
    {"list box, hangs", Source::kLists, "behave=hang listbox=many:5", false},
    {"list box, understates", Source::kLists, "behave=understate listbox=long", false},
    {"combo box, vanishes", Source::kLists, "behave=vanish simplecombo=many:9", false},
    {"combo box, dies", Source::kLists, "behave=die dropdown=many:9", true},
    {"list view", Source::kLists, "listview=odd", false},
    {"list view, owner data", Source::kLists, "ownerdata=many:200", false},
    {"list view, dies", Source::kLists, "behave=die listview=many:9", true},
    {"list view, huge", Source::kLists, "behave=huge listview=many:9", false},
    {"toolbar, negative", Source::kLists, "behave=negative toolbar=many:9", false},
    {"tabs, change", Source::kLists, "behave=change tabs=japanese", false},
    {"rows, change", Source::kLists, "behave=change rows=many:200", false},
    {"rows, hang", Source::kLists, "behave=hang ownerrows=many:50", false},
    {"tree, slow", Source::kLists, "behave=slow tree=many:30", false},
    {"tree, dies", Source::kLists, "behave=die tree=many:9", true},
    {"header, huge", Source::kLists, "behave=huge header=japanese", false},
    {"status bar, negative", Source::kLists, "behave=negative status=japanese", false},
    {"extended combo box, vanishes", Source::kLists, "behave=vanish comboex=many:9", false},
    {"fruit", Source::kAccessible, "fruit", false},
    {"tree", Source::kAccessible, "tree=60", false},
    {"objects", Source::kAccessible, "objects=40", false},
    {"cycle", Source::kAccessible, "cycle", false},
    {"endless", Source::kAccessible, "endless", false},
    {"claims", Source::kAccessible, "claims", false},
    {"huge name", Source::kAccessible, "huge", false},
    {"codes", Source::kAccessible, "codes", false},
    {"overflow", Source::kAccessible, "overflow", false},
    {"dies", Source::kAccessible, "dies", true},
    {"page", Source::kBrowser, "fruit", false},
    {"page, frames", Source::kBrowser, "scrolled", false},
    {"page, lists", Source::kBrowser, "lists", false},
    {"page, silent", Source::kBrowser, "silent", false},
    {"page, junk", Source::kBrowser, "junk", false},
    {"page, circle", Source::kBrowser, "circle", false},
    {"page, huge", Source::kBrowser, "huge", false},
    {"page, fails", Source::kBrowser, "failing", false},
    {"page, dies", Source::kBrowser, "dies=innerText", true},
};

}  // namespace

std::span<const TargetKind> TargetKinds() { return kKinds; }

}  // namespace soak
