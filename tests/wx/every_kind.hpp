#pragma once

#include "ui/button.hpp"
#include "ui/check_box.hpp"
#include "ui/combo_box.hpp"
#include "ui/date_picker.hpp"
#include "ui/form.hpp"
#include "ui/frame.hpp"
#include "ui/label.hpp"
#include "ui/list_box.hpp"
#include "ui/options.hpp"
#include "ui/pick_box.hpp"
#include "ui/progress_panel.hpp"
#include "ui/spin_box.hpp"
#include "ui/swatch.hpp"
#include "ui/tabs.hpp"
#include "ui/text_box.hpp"
#include "ui/tree_view.hpp"

namespace qor::tests {

// A form with a control of each kind, which writes down what happens to it.
class frmEveryKind final : public Form {
  public:
    explicit frmEveryKind(Screen& screen) : Form(u"frmEveryKind", screen) {
        lstMain.add_row({u"Tax", u"B2", u"second"});
        lstMain.add_row({u"Rent", u"A1", u"first"});
        TreeNode& root = treMain.add(nullptr, Relationship::child, u"ROOT", u"Windows", 1);
        TreeNode& book = treMain.add(&root, Relationship::child, u"book", u"model.xls", 1);
        treMain.add(&book, Relationship::child, u"sheet", u"Inputs", 2);
        root.set_expanded(true);
        treMain.on_picture_click = [](TreeNode& node) { node.set_image(3 - node.image()); };
        treMain.on_node_click = [this](const TreeNode& node) { log += u"node " + node.text() + u' '; };
        lstMain.on_click = [this](std::size_t row) { log += u"click " + lstMain.text(row, 0) + u' '; };
        lstMain.on_double_click = [this](std::size_t row) { log += u"double " + lstMain.text(row, 0) + u' '; };
        txtName.on_enter = [this] { log += u"enter "; };
        txtName.on_leave = [this] { log += u"leave "; };
        txtFolder.on_pick = [this] { log += u"pick "; };
        cmdColor.on_click = [this] { log += u"color "; };
        cmdButton.on_click = [this](int index) {
            log += index == 0 ? u"OK " : index == 1 ? u"Cancel " : u"Help ";
            if (on_button) on_button(index);
            if (index == 1) unload();
        };
    }
    std::u16string_view caption() const noexcept override { return u"Every kind"; }

    Label lblName{*this, u"lblName", u"Name"};
    TextBox txtName{*this, u"txtName"};
    CheckBox chkPath{*this, u"chkPath", u"Add the &path"};
    Options optOrder{*this, u"optOrder", {u"Beginning", u"&End"}};
    ComboBox cboPlace{*this, u"cboPlace", {u"Right", u"Left"}, 0};
    SpinBox spnMinutes{*this, u"spnMinutes", u"10", 1, 60};
    PickBox txtFolder{*this, u"txtFolder", u"FOLDER"};
    DatePicker txtDate{*this, u"txtDate", Date{38061}};  // 15 March 2004
    Swatch cmdColor{*this, u"cmdColor", u"BG"};
    Tabs tabMain{*this, u"tabMain", {u"First", u"Second"}};
    Frame fraPage0{*this, u"fraPage(0)", u"First"};
    TextBox txtFirst{*this, u"txtFirst", u"one"};
    Frame fraPage1{*this, u"fraPage(1)", u"Second"};
    TextBox txtSecond{*this, u"txtSecond", u"two"};
    Frame fraBox{*this, u"fraBox", u"Box"};
    CheckBox chkInside{*this, u"chkInside", u"Inside"};
    ListBox lstMain{*this, u"lstMain", {{u"Name"}, {u"Range", false}, {u"Order"}}};
    TreeView treMain{*this, u"treMain"};
    ProgressPanel SSPanel1{*this, u"SSPanel1"};
    Buttons cmdButton{*this, u"cmdButton", {{0, u"OK"}, {1, u"Cancel"}, {4, u"Help"}}};

    std::function<void(int)> on_button;
    std::u16string log;
};

}  // namespace qor::tests
