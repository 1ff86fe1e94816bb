#include "tests/calc/support/fixture.hpp"

#include "hosts/calc/adapter/objects/application/application.hpp"
#include "platform/text.hpp"

namespace qor {
namespace {

const char* kind_name(Variant::Kind kind) {
    static constexpr const char* names[] = {"Empty",  "Null",     "Missing", "Boolean", "Integer", "Long",   "Single",
                                            "Double", "Currency", "Date",    "String",  "Error",   "Object", "Array"};
    return names[static_cast<std::size_t>(kind)];
}

}  // namespace

bool operator==(const Variant& left, const Variant& right) {
    if (left.kind() != right.kind()) return false;
    if (const Array* array = left.array()) {
        const Array* other = right.array();
        if (array->rows() != other->rows() || array->columns() != other->columns()) return false;
        for (std::size_t i = 0; i < array->size(); ++i) {
            if (!(array->at(i) == other->at(i))) return false;
        }
        return true;
    }
    return left.visit([&](const auto& value) {
        using Value = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, Object>)
            return value.is(*right.get_if<Value>());
        else if constexpr (std::is_same_v<Value, std::shared_ptr<const Array>>)
            return false;
        else
            return value == *right.get_if<Value>();
    });
}

std::ostream& operator<<(std::ostream& out, const Variant& value) {
    out << kind_name(value.kind()) << ' ';
    if (const auto* text = value.get_if<std::u16string>()) return out << '"' << to_utf8(*text) << '"';
    if (const auto* truth = value.get_if<bool>()) return out << *truth;
    if (const auto* number = value.get_if<std::int32_t>()) return out << *number;
    if (const auto* number = value.get_if<double>()) return out << *number;
    if (const auto* money = value.get_if<Currency>()) return out << money->ten_thousandths;
    if (const auto* date = value.get_if<Date>()) return out << date->serial;
    if (const auto* error = value.get_if<ErrorValue>()) return out << error->code;
    if (const Array* array = value.array()) {
        out << array->rows() << 'x' << array->columns() << " [";
        for (const Variant& element : *array) out << element << "; ";
        return out << ']';
    }
    return out;
}

}  // namespace qor

namespace qor::calc::tests {

com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>& office_context() {
    static com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> context;
    return context;
}

namespace {

template <class Answer>
std::optional<Answer> next(std::vector<Answer>& answers) {
    if (answers.empty()) return {};
    Answer first = std::move(answers.front());
    answers.erase(answers.begin());
    return first;
}

}  // namespace

MessageAnswer ToldUser::message_box(const MessageBox& message) {
    messages.push_back(message);
    return next(answers).value_or(default_answer(message));
}

std::optional<std::u16string> ToldUser::file_to_save(FileDialog& dialog) {
    file_questions.push_back(dialog);
    return next(files);
}

std::optional<std::u16string> ToldUser::range(const RangeQuestion& question) {
    range_questions.push_back(question);
    return next(ranges);
}

bool ToldUser::show_page(const std::u16string& address) {
    pages.push_back(address);
    return shows_pages;
}

Calc::Calc() : application(make_application(office_context(), user, u"/usr/share/companion")) {}

Calc::~Calc() {
    attempt([&] {
        for (const Variant& book : application.get(names::Workbooks).object().items()) book.call(names::Close, false);
    });
}

Object Calc::add_book() const {
    return application.get(names::Workbooks).call(names::Add);
}

Object Calc::add_sheet() const {
    return add_book().get(names::Worksheets, 1);
}

Object Calc::open(const std::filesystem::path& path) const {
    return application.get(names::Workbooks).call(names::Open, from_utf8(path.string()));
}

Object Calc::reopened(const Object& book, const char* file_name) const {
    const std::filesystem::path path = folder() / file_name;
    book.call(names::SaveAs, from_utf8(path.string()));
    book.call(names::Close, false);
    return open(path);
}

std::string utf8(const Variant& text) {
    const auto* held = text.get_if<std::u16string>();
    return held ? to_utf8(*held) : "not a text";
}

}  // namespace qor::calc::tests
