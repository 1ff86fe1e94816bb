#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace qor {

// Named values of two kinds, kept as one image of bytes. A value that equals the default given at writing is not kept,
// and a name that is not there reads as the default given at reading. Names differ by the case of letters too.
class PropertyBag {
  public:
    void write(std::u16string name, std::int32_t value, std::int32_t standard);
    void write(std::u16string name, std::u16string value, std::u16string_view standard = {});

    // A value of the other kind reads as the default.
    std::int32_t read(std::u16string_view name, std::int32_t standard) const;
    std::u16string read(std::u16string_view name, std::u16string_view standard = {}) const;

    std::size_t size() const noexcept { return values_.size(); }

    // A CBOR map from names to integers and texts. A surrogate without its partner does not survive it.
    std::string image() const;
    // The bag of the image that the bytes begin with; whatever follows it is not looked at. Absent when they begin
    // with none. Neither depth nor claimed sizes can make this slow or large.
    static std::optional<PropertyBag> from_image(std::string_view bytes);

  private:
    friend class ImageReader;
    using Value = std::variant<std::int32_t, std::u16string>;

    std::map<std::u16string, Value, std::less<>> values_;
};

}  // namespace qor
