#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/files/recent_file_list.hpp"
#include "hosts/calc/adapter/objects/collection.hpp"
#include "platform/file_address.hpp"

namespace qor::calc {
namespace {

class RecentFileObject final : public OwnedObject<RecentFileObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"RecentFile";

    RecentFileObject(HostPointer host, std::u16string address)
        : OwnedObject(std::move(host)), address_(std::move(address)) {}

    Object parent() const { return make_recent_files(owner()); }

    static const MemberTable<RecentFileObject>& members() {
        using R = RecentFileObject;
        static const MemberTable<R> table(rows_with({
            method<&R::remove>(u"Delete"),
            property<&R::index>(u"Index"),
            property<&R::path>(u"Name"),
            method<&R::open>(u"Open"),
            property<&R::path>(u"Path"),
        }));
        return table;
    }

  private:
    std::u16string path() { return path_of_address(address_); }
    std::int32_t index() { return index_of(recent_files(*owner()), address_); }
    void remove() { forget_recent_file(*owner(), address_); }
    Object open() { return make_workbook(open_book(owner(), path(), false)); }

    std::u16string address_;
};

class RecentFilesObject final : public Collection<RecentFilesObject, HostPointer> {
  public:
    static constexpr std::u16string_view name_of_type = u"RecentFiles";

    using Collection::Collection;

    static const MemberTable<RecentFilesObject>& members() {
        using R = RecentFilesObject;
        static const MemberTable<R> table(rows_with({
            property<&R::maximum, &R::set_maximum>(u"Maximum"),
        }));
        return table;
    }

    std::vector<std::u16string> all() const { return recent_files(*owner()); }
    Object made(const std::u16string& address) const { return make_object<RecentFileObject>(owner(), address); }

  private:
    std::int32_t maximum() { return recent_file_limit(*owner()); }
    void set_maximum(std::int32_t limit) { set_recent_file_limit(*owner(), limit); }
};

}  // namespace

Object make_recent_files(HostPointer host) {
    return make_object<RecentFilesObject>(std::move(host));
}

}  // namespace qor::calc
