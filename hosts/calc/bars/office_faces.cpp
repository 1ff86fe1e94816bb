#include "hosts/calc/bars/office_faces.hpp"

#include <com/sun/star/graphic/GraphicProvider.hpp>
#include <osl/file.hxx>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "platform/text.hpp"

namespace qor::calc {
namespace {

constexpr std::int32_t resource_not_found = 326;  // the run time's number

}  // namespace

void OfficeFaces::put(std::u16string_view name) {
    const std::filesystem::path file = folder_ / (to_utf8(name) + ".svg");
    guarded([&] {
        rtl::OUString url;
        osl::FileBase::getFileURLFromSystemPath(to_uno(from_utf8(file.native())), url);
        css::uno::Reference<css::graphic::XGraphic> face;
        if (std::filesystem::exists(file)) {
            const Ref provider{css::graphic::GraphicProvider::create(context_)};
            face = provider->queryGraphic(sequence_of({named_value("URL", url)}));
        }
        if (!face.is()) {
            throw Error(resource_not_found, {}, u"Resource with identifier '" + std::u16string(name) + u"' not found.");
        }
        Bars::of(context_)->face_on_clipboard = face;
    });
}

}  // namespace qor::calc
