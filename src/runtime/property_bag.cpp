#include "runtime/property_bag.hpp"

#include <limits>
#include <nlohmann/json.hpp>

#include "platform/text.hpp"

namespace qor {

using nlohmann::json;

// Takes what the library finds in an image. Each answer says whether to go on: at the first thing that no image of a
// bag has, reading ends, before the library would follow nested arrays down.
class ImageReader {
  public:
    PropertyBag bag;

    bool start_object(std::size_t) { return std::exchange(at_start_, false); }
    bool key(std::string& name) {
        name_ = from_utf8(name);
        return true;
    }
    bool number_integer(std::int64_t value) { return take_number(value); }
    bool number_unsigned(std::uint64_t value) {
        return value <= largest && take_number(static_cast<std::int64_t>(value));
    }
    bool string(std::string& value) {
        if (at_start_) return false;
        bag.values_.insert_or_assign(name_, from_utf8(value));
        return true;
    }
    bool end_object() { return true; }

    bool null() { return false; }
    bool boolean(bool) { return false; }
    bool number_float(double, const std::string&) { return false; }
    bool binary(json::binary_t&) { return false; }
    bool start_array(std::size_t) { return false; }
    bool end_array() { return false; }
    bool parse_error(std::size_t, const std::string&, const json::exception&) { return false; }

  private:
    static constexpr std::uint64_t largest = std::numeric_limits<std::int32_t>::max();

    bool take_number(std::int64_t value) {
        const auto kept = static_cast<std::int32_t>(value);
        if (at_start_ || kept != value) return false;
        bag.values_.insert_or_assign(name_, kept);
        return true;
    }

    bool at_start_ = true;
    std::u16string name_;
};

void PropertyBag::write(std::u16string name, std::int32_t value, std::int32_t standard) {
    if (value != standard) values_.insert_or_assign(std::move(name), value);
}

void PropertyBag::write(std::u16string name, std::u16string value, std::u16string_view standard) {
    if (value != standard) values_.insert_or_assign(std::move(name), std::move(value));
}

std::int32_t PropertyBag::read(std::u16string_view name, std::int32_t standard) const {
    const auto place = values_.find(name);
    const auto* value = place == values_.end() ? nullptr : std::get_if<std::int32_t>(&place->second);
    return value ? *value : standard;
}

std::u16string PropertyBag::read(std::u16string_view name, std::u16string_view standard) const {
    const auto place = values_.find(name);
    const auto* value = place == values_.end() ? nullptr : std::get_if<std::u16string>(&place->second);
    return value ? *value : std::u16string(standard);
}

std::string PropertyBag::image() const {
    json map = json::object();
    for (const auto& [name, value] : values_) {
        json& place = map[to_utf8(name)];
        if (const auto* number = std::get_if<std::int32_t>(&value)) {
            place = *number;
        } else {
            place = to_utf8(std::get<std::u16string>(value));
        }
    }
    std::string bytes;
    json::to_cbor(map, bytes);
    return bytes;
}

std::optional<PropertyBag> PropertyBag::from_image(std::string_view bytes) {
    constexpr bool all_must_be_read = false;
    ImageReader reader;
    if (!json::sax_parse(bytes, &reader, json::input_format_t::cbor, all_must_be_read)) return {};
    return std::move(reader.bag);
}

}  // namespace qor
