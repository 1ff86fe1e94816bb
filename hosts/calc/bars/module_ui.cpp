#include "hosts/calc/bars/module_ui.hpp"

#include <algorithm>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/theUICommandDescription.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/ui/ImageType.hpp>
#include <com/sun/star/ui/UIElementType.hpp>
#include <com/sun/star/ui/theModuleUIConfigurationManagerSupplier.hpp>
#include <com/sun/star/ui/theWindowStateConfiguration.hpp>

#include "hosts/calc/uno/property.hpp"
#include "hosts/calc/uno/sequence.hpp"

namespace qor::calc {
namespace {

using rtl::OUString;

constexpr char calc_module[] = "com.sun.star.sheet.SpreadsheetDocument";
namespace image = css::ui::ImageType;
constexpr sal_Int16 image_sizes[] = {image::SIZE_DEFAULT, image::SIZE_LARGE, image::SIZE_32};  // as in ButtonFace

std::u16string text_property(const PropertyValues& properties, const char* name) {
    for (const css::beans::PropertyValue& property : properties) {
        if (OUString text; property.Name.equalsAscii(name) && (property.Value >>= text)) return from_uno(text);
    }
    return {};
}

bool shows_workbook(const Ref<css::frame::XFrame>& frame) {
    const Ref controller{frame->getController()};
    return controller && Ref<css::sheet::XSpreadsheetDocument>(Ref{controller->getModel()});
}

}  // namespace

ModuleUi::ModuleUi(Context context)
    : context_(std::move(context)),
      manager_(Ref(css::ui::theModuleUIConfigurationManagerSupplier::get(context_.reference()))
                   ->getUIConfigurationManager(OUString(calc_module))),
      window_states_(
          Ref(css::ui::theWindowStateConfiguration::get(context_.reference()))->getByName(OUString(calc_module))),
      commands_(Ref(css::frame::theUICommandDescription::get(context_.reference()))->getByName(OUString(calc_module))) {
}

std::vector<Ref<css::frame::XFrame>> ModuleUi::frames() const {
    std::vector<Ref<css::frame::XFrame>> result;
    const Ref desktop{css::frame::Desktop::create(context_.reference())};
    const Ref<css::container::XIndexAccess> all(Ref{desktop->getFrames()});
    for (sal_Int32 place = 0; place < all->getCount(); ++place) {
        Ref<css::frame::XFrame> frame(all->getByIndex(place));
        if (frame && shows_workbook(frame)) result.push_back(std::move(frame));
    }
    const Ref current{desktop->getCurrentFrame()};
    std::stable_partition(result.begin(), result.end(), [&](const auto& frame) { return frame == current; });
    return result;
}

std::vector<Ref<css::frame::XLayoutManager>> ModuleUi::layouts() const {
    std::vector<Ref<css::frame::XLayoutManager>> result;
    for (const Ref<css::frame::XFrame>& frame : frames()) {
        if (auto layout = layout_of(frame)) result.push_back(std::move(layout));
    }
    return result;
}

std::vector<std::u16string> ModuleUi::toolbar_urls() const {
    std::vector<std::u16string> result;
    for (const PropertyValues& properties : manager_->getUIElementsInfo(css::ui::UIElementType::TOOLBAR)) {
        std::u16string url = text_property(properties, "ResourceURL");
        if (!url.starts_with(own_toolbar_prefix)) result.push_back(std::move(url));
    }
    std::ranges::sort(result);
    return result;
}

std::u16string ModuleUi::toolbar_name(const std::u16string& url) const {
    if (!window_states_->hasByName(to_uno(url))) return {};
    return text_property(value_of<PropertyValues>(window_states_->getByName(to_uno(url))), "UIName");
}

std::u16string ModuleUi::label_of(const std::u16string& command) const {
    if (!commands_->hasByName(to_uno(command))) return {};
    return text_property(value_of<PropertyValues>(commands_->getByName(to_uno(command))), "Label");
}

void ModuleUi::set_content(const std::u16string& url, const Ref<css::container::XIndexContainer>& content) const {
    const Ref<css::container::XIndexAccess> settings(content);
    if (manager_->hasSettings(to_uno(url))) {
        manager_->replaceSettings(to_uno(url), settings.reference());
    } else {
        manager_->insertSettings(to_uno(url), settings.reference());
    }
}

void ModuleUi::set_image(const std::u16string& command, const ButtonFace& face) const {
    const Ref<css::ui::XImageManager> images(Ref{manager_->getImageManager()});
    const auto commands = sequence_of({to_uno(command)});
    for (std::size_t place = 0; place < face.size(); ++place) {
        const sal_Int16 size = image_sizes[place];
        if (images->hasImage(size, commands[0])) {
            images->replaceImages(size, commands, sequence_of({face[place].reference()}));
        } else {
            images->insertImages(size, commands, sequence_of({face[place].reference()}));
        }
    }
}

void ModuleUi::remove_image(const std::u16string& command) const {
    const Ref<css::ui::XImageManager> images(Ref{manager_->getImageManager()});
    const auto commands = sequence_of({to_uno(command)});
    for (const sal_Int16 size : image_sizes) {
        if (images->hasImage(size, commands[0])) images->removeImages(size, commands);
    }
}

Ref<css::frame::XLayoutManager> layout_of(const Ref<css::frame::XFrame>& frame) {
    const css::uno::Any layout = Ref<css::beans::XPropertySet>(frame)->getPropertyValue("LayoutManager");
    return Ref<css::frame::XLayoutManager>(layout);
}

}  // namespace qor::calc
