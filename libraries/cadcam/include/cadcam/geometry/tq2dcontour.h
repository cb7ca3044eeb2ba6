// tq2dContour: an ordered list of shared two-dimensional items.
#pragma once

#include <cstddef>
#include <iterator>
#include <vector>

#include "cadcam/geometry/tq2dgeometry.h"

namespace cadcam {

namespace detail_ {
/// Throws tqException "Dereference of bad pointer".
[[noreturn]] TQ_EXPORT void ThrowBadDereference();
}  // namespace detail_

/// Items in order, each shared through a tqAutoPointer; a copy shares the items, Clone copies them.
template <class T>
class TQ_EXPORT tq2dContour : public tq2dGeometry<T> {
public:
    using Item = misc::tqAutoPointer<tq2dGeometry<T>>;

    /// Walks the items in order. Dereferenced outside the sequence (at end, past it, or default-made) it
    /// throws tqException "Dereference of bad pointer" instead of reading past the list.
    class ConstIterator {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = Item;
        using difference_type = std::ptrdiff_t;
        using pointer = const Item*;
        using reference = const Item&;

        ConstIterator() = default;
        reference operator*() const {
            if (m_items == nullptr || m_index >= m_items->size()) detail_::ThrowBadDereference();
            return (*m_items)[m_index];
        }
        pointer operator->() const { return &**this; }
        ConstIterator& operator++() { ++m_index; return *this; }
        ConstIterator operator++(int) { ConstIterator old = *this; ++m_index; return old; }
        ConstIterator& operator--() { --m_index; return *this; }
        ConstIterator operator--(int) { ConstIterator old = *this; --m_index; return old; }
        bool operator==(const ConstIterator& o) const { return m_items == o.m_items && m_index == o.m_index; }
        bool operator!=(const ConstIterator& o) const { return !(*this == o); }

    private:
        friend class tq2dContour;
        ConstIterator(const std::vector<Item>* items, std::size_t index) : m_items(items), m_index(index) {}

        const std::vector<Item>* m_items = nullptr;
        std::size_t m_index = 0;
    };

    /// No items.
    tq2dContour() = default;
    /// Shares the items of other.
    tq2dContour(const tq2dContour& other) = default;
    tq2dContour& operator=(const tq2dContour& other) = default;
    ~tq2dContour() override;

    std::size_t GetCount() const { return m_items.size(); }
    bool IsEmpty() const { return m_items.empty(); }
    /// The item at index; an index past the end throws tqIdxRangeException.
    const Item& GetItem(std::size_t index) const;
    /// Adds an item at the end; a null item throws "Accessing TQ_NULL pointer".
    void Append(const Item& item);
    /// Puts an item before position index (index = count appends); a null item or an index past the count throws.
    void Insert(std::size_t index, const Item& item);
    /// Removes the item at index; an index past the end throws tqIdxRangeException.
    void Erase(std::size_t index);
    /// Removes every item.
    void Clear() { m_items.clear(); }

    ConstIterator begin() const { return ConstIterator(&m_items, 0); }
    ConstIterator end() const { return ConstIterator(&m_items, m_items.size()); }

    void AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const override;
    /// A contour of clones of the items.
    misc::tqAutoPointer<tq2dGeometry<T>> Clone() const override;
    /// Scales each distinct item once, even one that stands in the list twice.
    void Scale(const T& factor) override;

    /// Exact: the same count and, in order, equal items of equal kinds (two nulls pass, one null fails).
    bool operator==(const tq2dContour& other) const;
    bool operator!=(const tq2dContour& other) const { return !(*this == other); }

private:
    std::vector<Item> m_items;
};

extern template class tq2dContour<double>;
extern template class tq2dContour<float>;

}  // namespace cadcam
