// tq2dContour: editing the list, visiting, deep cloning, scaling and comparison.
#include "cadcam/geometry/tq2dcontour.h"

#include <cstdint>
#include <unordered_set>

#include "cadcam/geometry/tq2dgeometryconstvisitor.h"
#include "misc/tqexception.h"

namespace cadcam {

namespace detail_ {

void ThrowBadDereference() { throw misc::tqException(0, u"Dereference of bad pointer"); }

}  // namespace detail_

namespace {

[[noreturn]] void ThrowIndex(std::size_t limit, std::size_t index) {
    throw misc::tqIdxRangeException<std::uint64_t>(u"Contour index out of range", limit, index);
}

}  // namespace

template <class T>
tq2dContour<T>::~tq2dContour() = default;

template <class T>
const typename tq2dContour<T>::Item& tq2dContour<T>::GetItem(std::size_t index) const {
    if (index >= m_items.size()) ThrowIndex(m_items.size(), index);
    return m_items[index];
}

template <class T>
void tq2dContour<T>::Append(const Item& item) {
    if (item.IsNull()) misc::detail_::ThrowNullPointer();
    m_items.push_back(item);
}

template <class T>
void tq2dContour<T>::Insert(std::size_t index, const Item& item) {
    if (item.IsNull()) misc::detail_::ThrowNullPointer();
    if (index > m_items.size()) ThrowIndex(m_items.size(), index);
    m_items.insert(m_items.begin() + static_cast<std::ptrdiff_t>(index), item);
}

template <class T>
void tq2dContour<T>::Erase(std::size_t index) {
    if (index >= m_items.size()) ThrowIndex(m_items.size(), index);
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(index));
}

template <class T>
void tq2dContour<T>::AcceptVisitor(tq2dGeometryConstVisitor<T>& visitor) const {
    visitor.Visit(*this);
}

template <class T>
misc::tqAutoPointer<tq2dGeometry<T>> tq2dContour<T>::Clone() const {
    auto* copy = new tq2dContour();
    misc::tqAutoPointer<tq2dGeometry<T>> result(copy);
    copy->m_items.reserve(m_items.size());
    for (const Item& item : m_items) copy->m_items.push_back(item.IsNull() ? Item() : item->Clone());
    return result;
}

template <class T>
void tq2dContour<T>::Scale(const T& factor) {
    tq2dGeometry<T>::CheckScaleFactor(factor);
    std::unordered_set<const tq2dGeometry<T>*> scaled;
    for (const Item& item : m_items)
        if (item.IsNotNull() && scaled.insert(item.Get()).second) item->Scale(factor);
}

template <class T>
bool tq2dContour<T>::operator==(const tq2dContour& other) const {
    if (m_items.size() != other.m_items.size()) return false;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const Item& a = m_items[i];
        const Item& b = other.m_items[i];
        if (a.IsNull() != b.IsNull()) return false;
        if (a.IsNotNull() && !a->IsEqual(*b)) return false;
    }
    return true;
}

template class tq2dContour<double>;
template class tq2dContour<float>;

}  // namespace cadcam
