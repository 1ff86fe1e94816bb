// Writes the description of CCom's members, from which the type library is made, to the file named.

#include <array>
#include <fstream>
#include <iostream>

#include "core/CCom.hpp"
#include "ground/product.hpp"
#include "hosts/excel/com/ole.hpp"
#include "hosts/excel/server/identity.hpp"
#include "platform/text.hpp"

using namespace qor;

namespace {

std::string text_of(const GUID& id) {
    std::array<wchar_t, 40> text{};
    const int length = StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return to_utf8(std::u16string(text.data() + 1, text.data() + length - 2));  // without the braces
}

bool answers_put(const Member<CCom>& member) {
    return (member.accesses & static_cast<unsigned>(Access::put)) != 0;
}

void write_parameters(std::ostream& out, const Member<CCom>& member) {
    std::string_view separator;
    for (std::size_t place = 0; place < member.parameters.size(); ++place) {
        const bool goes_back = (member.by_reference >> place & 1U) != 0;
        out << separator << (goes_back ? "[in, out, optional] VARIANT* " : "[in, optional] VARIANT ")
            << to_utf8(member.parameters[place]);
        separator = ", ";
    }
}

void write_member(std::ostream& out, std::size_t id, const Member<CCom>& member) {
    const std::string name = to_utf8(member.name);
    if (answers_put(member)) {
        out << "    [id(" << id << "), propget] VARIANT " << name << "();\n"
            << "    [id(" << id << "), propput] void " << name << "([in] VARIANT value);\n";
        return;
    }
    out << "    [id(" << id << ")] VARIANT " << name << '(';
    write_parameters(out, member);
    out << ");\n";
}

void write_library(std::ostream& out) {
    out << "import \"oaidl.idl\";\n\n"
        << "[uuid(" << text_of(excel::library_id) << "), version(" << to_utf8(product::version) << "), helpstring(\""
        << to_utf8(product::title) << "\")]\nlibrary QORPlus {\n"
        << "  importlib(\"stdole2.tlb\");\n\n"
        << "  [uuid(" << text_of(excel::members_id) << ")]\n  dispinterface Members {\n  properties:\n  methods:\n";
    std::size_t id = 0;
    for (const Member<CCom>& member : CCom::members().rows()) write_member(out, ++id, member);
    out << "  };\n\n"
        << "  [uuid(" << text_of(excel::class_id) << ")]\n  coclass CCom {\n    [default] dispinterface Members;\n"
        << "  };\n};\n";
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: write_members FILE\n";
        return 2;
    }
    std::ofstream out(arguments[1], std::ios::binary);
    write_library(out);
    out.close();
    return out ? 0 : 1;
}
