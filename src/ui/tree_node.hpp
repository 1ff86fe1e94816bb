#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "automation/variant.hpp"

namespace qor {

class TreeView;

// Where a node is added, seen from the node that it is added by. The numbers are the widget's own.
enum class Relationship : std::uint8_t { last_sibling = 1, next_sibling = 2, child = 4 };

// One row of a TreeView, which owns it.
class TreeNode {
  public:
    TreeNode(TreeView& tree, std::u16string key, std::u16string text, int image)
        : tree_(tree), key_(std::move(key)), text_(std::move(text)), image_(image) {}
    TreeNode(const TreeNode&) = delete;
    TreeNode& operator=(const TreeNode&) = delete;

    const std::u16string& key() const noexcept { return key_; }
    // Raises 5 for a key that another node has.
    void set_key(std::u16string key);
    const std::u16string& text() const noexcept { return text_; }
    void set_text(std::u16string text);

    int image() const noexcept { return image_; }  // place in the widget's image list, from 1
    void set_image(int image);
    const Variant& tag() const noexcept { return tag_; }
    void set_tag(Variant tag) { tag_ = std::move(tag); }

    bool expanded() const noexcept { return expanded_; }
    void set_expanded(bool expanded);

    bool italic() const noexcept { return italic_; }
    void set_italic(bool italic);
    bool bold() const noexcept { return bold_; }
    void set_bold(bool bold);
    // Colours as 0xBBGGRR; without one the widget's own colour shows.
    std::optional<std::int32_t> back_color() const noexcept { return back_color_; }
    void set_back_color(std::int32_t color);
    std::optional<std::int32_t> fore_color() const noexcept { return fore_color_; }
    void set_fore_color(std::int32_t color);

    std::size_t index() const noexcept { return index_; }  // in the tree's collection, from 1
    int level() const noexcept { return level_; }          // from 1
    TreeNode* parent() const noexcept { return parent_; }
    TreeNode* first_child() const noexcept { return first_child_; }
    TreeNode* next_sibling() const noexcept { return next_; }
    TreeNode* first_sibling() noexcept;
    TreeNode* last_sibling() noexcept;
    std::size_t child_count() const noexcept { return child_count_; }

  private:
    friend class TreeView;

    template <class T>
    void assign(T& place, T value);

    TreeView& tree_;
    std::u16string key_;
    std::u16string text_;
    int image_;
    Variant tag_;
    bool expanded_ = false;
    bool italic_ = false;
    bool bold_ = false;
    std::optional<std::int32_t> back_color_;
    std::optional<std::int32_t> fore_color_;

    std::size_t index_ = 0;
    int level_ = 1;
    TreeNode* parent_ = nullptr;
    TreeNode* first_child_ = nullptr;
    TreeNode* last_child_ = nullptr;
    TreeNode* previous_ = nullptr;
    TreeNode* next_ = nullptr;
    std::size_t child_count_ = 0;
};

}  // namespace qor
