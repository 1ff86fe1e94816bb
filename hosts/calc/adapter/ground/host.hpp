#pragma once

#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <memory>
#include <optional>
#include <vector>

#include "hosts/calc/adapter/ground/host_user.hpp"
#include "hosts/calc/adapter/ground/status_bar.hpp"
#include "hosts/calc/adapter/ground/window_list.hpp"
#include "hosts/calc/formula/translator.hpp"
#include "hosts/calc/uno/context.hpp"
#include "hosts/calc/uno/document.hpp"

namespace qor::calc {

struct Window {
    Document document;
    Controller controller;
};

// What the objects of one Application share.
class Host : public std::enable_shared_from_this<Host> {
  public:
    // The companion's folder is where the data files lie. Without a user every question is refused.
    explicit Host(Context context, std::shared_ptr<HostUser> user = {}, std::u16string companion_folder = {});

    const Context& context() const noexcept { return context_; }
    const Ref<css::frame::XDesktop2>& desktop() const noexcept { return desktop_; }

    HostUser& user() const;
    const std::u16string& companion_folder() const noexcept { return companion_folder_; }
    // What the office is called.
    std::u16string name() const;

    // The open workbooks in the order of their opening, hidden ones too.
    std::vector<Document> documents() const;
    // The windows of all workbooks, or of one. The active window comes first, then the one that was active before it.
    std::vector<Window> windows();
    std::vector<Window> windows(const Document& document);
    // The window and the workbook that the user works in; empty when none can be seen.
    Window active_window();
    Document active_document() { return active_window().document; }
    void activate(const Window& window);
    // Brings a workbook's last active window to the front. One without a window that can be seen is left where it is.
    void activate(const Document& document);
    WindowList& window_list() noexcept { return window_list_; }

    // The names of functions come from the office at the first use.
    const FormulaTranslator& translator();

    bool screen_updating() const noexcept { return screen_updating_; }
    void set_screen_updating(bool on);

    bool display_alerts = true;
    StatusBar status_bar;

    // The copy of cells that was put on the clipboard last, and its size.
    struct Copied {
        Ref<css::uno::XInterface> cells;
        std::int32_t rows = 0;
        std::int32_t columns = 0;
    } copied;

  private:
    void lock_screens();
    void unlock_screens();

    Context context_;
    std::shared_ptr<HostUser> user_;
    std::u16string companion_folder_;
    Ref<css::frame::XDesktop2> desktop_;
    WindowList window_list_;
    std::optional<FormulaTranslator> translator_;
    bool screen_updating_ = true;
    std::vector<Document> locked_;  // whose screens stand still
};

using HostPointer = std::shared_ptr<Host>;

// Whether some window of the document can be seen.
bool has_visible_window(const Document& document);

}  // namespace qor::calc
