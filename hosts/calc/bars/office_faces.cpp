#include "hosts/calc/bars/office_faces.hpp"

#include <com/sun/star/graphic/GraphicProvider.hpp>
#include <com/sun/star/io/SequenceInputStream.hpp>

#include "hosts/calc/bars/bars.hpp"
#include "hosts/calc/uno/guarded.hpp"
#include "hosts/calc/uno/sequence.hpp"
#include "resources/faces.hpp"

namespace qor::calc {
namespace {

constexpr std::int32_t resource_not_found = 326;  // the run time's number
constexpr int sizes[] = {16, 24, 32};             // as in ButtonFace

}  // namespace

void OfficeFaces::put(std::u16string_view name) {
    guarded([&] {
        const Ref provider{css::graphic::GraphicProvider::create(context_.reference())};
        ButtonFace face;
        for (std::size_t place = 0; place < face.size(); ++place) {
            const std::span<const std::byte> png = face_png(name, sizes[place]);
            if (png.empty()) {
                throw Error(resource_not_found, {},
                            u"Resource with identifier '" + std::u16string(name) + u"' not found.");
            }
            const css::uno::Sequence<sal_Int8> bytes(reinterpret_cast<const sal_Int8*>(png.data()),
                                                     static_cast<sal_Int32>(png.size()));
            const auto stream = css::io::SequenceInputStream::createStreamFromSequence(context_.reference(), bytes);
            face[place] = provider->queryGraphic(sequence_of({named_value("InputStream", stream)}));
        }
        Bars::of(context_)->face_on_clipboard = face;
    });
}

}  // namespace qor::calc
