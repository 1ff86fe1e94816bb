#include "hosts/calc/adapter/files/documents.hpp"
#include "hosts/calc/adapter/files/recent_file_list.hpp"
#include "hosts/calc/adapter/ground/file_paths.hpp"
#include "hosts/calc/adapter/objects/calc_object.hpp"
#include "hosts/calc/adapter/objects/objects.hpp"

namespace qor::calc {
namespace {

class RecentFileObject final : public CalcObject<RecentFileObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"RecentFile";

    RecentFileObject(HostPointer host, std::u16string address) : host_(std::move(host)), address_(std::move(address)) {}

    static const MemberTable<RecentFileObject>& members() {
        using R = RecentFileObject;
        static const MemberTable<R> table({
            property<&R::application>(u"Application"),
            method<&R::remove>(u"Delete"),
            property<&R::index>(u"Index"),
            property<&R::path>(u"Name"),
            method<&R::open>(u"Open"),
            property<&R::parent>(u"Parent"),
            property<&R::path>(u"Path"),
        });
        return table;
    }

  private:
    std::u16string path() { return path_of_address(address_); }
    std::int32_t index() {
        const std::vector<std::u16string> all = recent_files(*host_);
        const auto place = std::ranges::find(all, address_);
        if (place == all.end()) throw Error(ErrorNumber::host_refused);
        return static_cast<std::int32_t>(place - all.begin()) + 1;
    }
    void remove() { forget_recent_file(*host_, address_); }
    Object open() { return make_workbook(open_book(host_, path(), false)); }
    Object parent() { return make_recent_files(host_); }
    Object application() { return make_application(host_); }

    HostPointer host_;
    std::u16string address_;
};

class RecentFilesObject final : public CalcObject<RecentFilesObject> {
  public:
    static constexpr std::u16string_view name_of_type = u"RecentFiles";

    explicit RecentFilesObject(HostPointer host) : host_(std::move(host)) {}

    static const MemberTable<RecentFilesObject>& members() {
        using R = RecentFilesObject;
        static const MemberTable<R> table({
            property<&R::application>(u"Application"),
            property<&R::count>(u"Count"),
            property<&R::item>(u"Item", {u"Index"}),
            property<&R::maximum, &R::set_maximum>(u"Maximum"),
            property<&R::application>(u"Parent"),
        });
        return table;
    }

    std::vector<Variant> elements() const {
        std::vector<Variant> result;
        for (const std::u16string& address : recent_files(*host_)) {
            result.emplace_back(make_object<RecentFileObject>(host_, address));
        }
        return result;
    }

  private:
    std::int32_t count() { return static_cast<std::int32_t>(recent_files(*host_).size()); }
    Object item(std::int32_t index) {
        const std::vector<std::u16string> all = recent_files(*host_);
        return make_object<RecentFileObject>(host_, element_at(all, index));
    }
    std::int32_t maximum() { return recent_file_limit(*host_); }
    void set_maximum(std::int32_t limit) { set_recent_file_limit(*host_, limit); }
    Object application() { return make_application(host_); }

    HostPointer host_;
};

}  // namespace

Object make_recent_files(HostPointer host) {
    return make_object<RecentFilesObject>(std::move(host));
}

}  // namespace qor::calc
