#include "screens/wx/layout.hpp"

#include <wx/mstream.h>
#include <wx/xml/xml.h>
#include <wx/xrc/xh_dlg.h>
#include <wx/xrc/xh_panel.h>
#include <wx/xrc/xh_sizer.h>
#include <wx/xrc/xh_split.h>
#include <wx/xrc/xh_stlin.h>
#include <wx/xrc/xh_sttxt.h>
#include <wx/xrc/xmlres.h>

#include <memory>
#include <stdexcept>

#include "screens/wx/text.hpp"

namespace qor::wx {
namespace {

// <object class="Control" name="...">: the place of a control; what it is follows from its model.
class ControlHandler final : public wxXmlResourceHandler {
  public:
    explicit ControlHandler(const ControlMaker& make) : make_(make) {}

    bool CanHandle(wxXmlNode* node) override { return IsOfClass(node, "Control"); }

    wxObject* DoCreateResource() override {
        const Hints hints{.columns = static_cast<int>(GetLong("columns", 1)),
                          .width = GetDimension("width", 0),
                          .flat = GetBool("flat")};
        const wxString name = GetName();
        Binding& binding = make_(from_wx(name), m_parentAsWindow, hints);
        SetupWindow(&binding.window());
        binding.window().SetName(name);
        CreateChildren(&binding.inside());
        binding.completed();
        return &binding.window();
    }

  private:
    const ControlMaker& make_;
};

class Resource final : public wxXmlResource {
  public:
    explicit Resource(const ControlMaker& make) : wxXmlResource(wxXRC_NO_RELOADING) {
        AddHandler(new wxDialogXmlHandler);
        AddHandler(new wxPanelXmlHandler);
        AddHandler(new wxSizerXmlHandler);
        AddHandler(new wxStdDialogButtonSizerXmlHandler);
        AddHandler(new wxSplitterWindowXmlHandler);
        AddHandler(new wxStaticLineXmlHandler);
        AddHandler(new wxStaticTextXmlHandler);
        AddHandler(new ControlHandler(make));
    }

  protected:
    void DoReportError(const wxString&, const wxXmlNode*, const wxString& message) override {
        throw std::logic_error(message.utf8_string());
    }
};

}  // namespace

wxDialog* lay_out(const Layouts& layouts, std::u16string_view form, wxWindow* parent, const ControlMaker& make) {
    const auto layout = layouts.find(form);
    if (layout == layouts.end()) throw std::logic_error(to_utf8(form) + " has no layout");
    wxMemoryInputStream text(layout->second.data(), layout->second.size());
    auto document = std::make_unique<wxXmlDocument>();
    if (!document->Load(text)) throw std::logic_error("the layout of " + to_utf8(form) + " is no XML");

    Resource resource(make);
    resource.LoadDocument(document.release(), to_wx(form));
    auto dialog = std::make_unique<wxDialog>();
    if (!resource.LoadDialog(dialog.get(), parent, to_wx(form))) {
        throw std::logic_error("the layout of " + to_utf8(form) + " holds no dialog of that name");
    }
    return dialog.release();
}

}  // namespace qor::wx
