// tqToolPartsContainer and its visitors; instantiated for float and double.
#include "cadcam/tools/parts/tqtoolpartscontainer.h"

#include <cstdint>

#include "cadcam/tools/parts/tqalltoolpartdefinitions.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "misc/tqexception.h"

namespace cadcam {
namespace {

/// Lets every part of the list accept visitor; a null entry fails as a null pointer does.
template <class T>
void VisitAll(const std::vector<misc::tqAutoPointer<tqToolPartDefinition<T>>>& parts,
              tqToolPartDefinitionVisitor<T>& visitor) {
    for (const auto& part : parts) part->AcceptVisitor(visitor);
}

}  // namespace

// tqToolPartsValidator: only the parts a tool's body is made of.

template <class T>
tqToolPartsContainer<T>::tqToolPartsValidator::tqToolPartsValidator() = default;
template <class T>
tqToolPartsContainer<T>::tqToolPartsValidator::~tqToolPartsValidator() = default;

template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Validate(const PartList& parts) {
    tqToolPartsValidator validator;
    VisitAll(parts, validator);
}

template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Visit(const tqHolderDefinition<T>&) {
    throw tqcadcamException(2184);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Visit(const tqArborDefinition<T>&) {
    throw tqcadcamException(2184);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Visit(const tqNonCuttingPartDefinition<T>&) {}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Visit(const tqCuttingPartDefinition<T>&) {}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsValidator::Visit(const tqToolPartDefinition<T>&) {
    throw tqcadcamException(2184);
}

// tqToolPartsExtractor

template <class T>
tqToolPartsContainer<T>::tqToolPartsExtractor::tqToolPartsExtractor(const PartList& parts) {
    for (const auto& part : parts) Add(part);
}

template <class T>
tqToolPartsContainer<T>::tqToolPartsExtractor::~tqToolPartsExtractor() = default;

template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Add(const PartPointer& part) {
    const tqToolPartDefinition<T>& visited = *part;
    m_current = &part;
    try {
        visited.AcceptVisitor(*this);
    } catch (...) {
        m_current = nullptr;
        throw;
    }
    m_current = nullptr;
}

template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Keep(PartList& list, const tqToolPartDefinition<T>& part) {
    // A direct visit has no shared pointer to keep.
    list.push_back(m_current != nullptr ? *m_current : part.Clone());
}

template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Visit(const tqHolderDefinition<T>& part) {
    Keep(m_holders, part);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Visit(const tqArborDefinition<T>& part) {
    Keep(m_arbors, part);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Visit(const tqNonCuttingPartDefinition<T>& part) {
    Keep(m_nonCutting, part);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Visit(const tqCuttingPartDefinition<T>& part) {
    Keep(m_cutting, part);
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsExtractor::Visit(const tqToolPartDefinition<T>&) {
    throw tqcadcamException(2184);
}

// tqToolPartsCloner: each part's own Clone keeps the role and copies the solid without checking its profile
// again.

template <class T>
tqToolPartsContainer<T>::tqToolPartsCloner::tqToolPartsCloner() = default;
template <class T>
tqToolPartsContainer<T>::tqToolPartsCloner::~tqToolPartsCloner() = default;

template <class T>
typename tqToolPartsContainer<T>::PartList tqToolPartsContainer<T>::tqToolPartsCloner::Clone(const PartList& parts) {
    PartList clones;
    clones.reserve(parts.size());
    tqToolPartsCloner cloner;
    for (const auto& part : parts) {
        part->AcceptVisitor(cloner);
        clones.push_back(cloner.m_clone);
    }
    return clones;
}

template <class T>
void tqToolPartsContainer<T>::tqToolPartsCloner::Visit(const tqHolderDefinition<T>& part) {
    m_clone = part.Clone();
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsCloner::Visit(const tqArborDefinition<T>& part) {
    m_clone = part.Clone();
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsCloner::Visit(const tqNonCuttingPartDefinition<T>& part) {
    m_clone = part.Clone();
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsCloner::Visit(const tqCuttingPartDefinition<T>& part) {
    m_clone = part.Clone();
}
template <class T>
void tqToolPartsContainer<T>::tqToolPartsCloner::Visit(const tqToolPartDefinition<T>&) {
    throw tqcadcamException(2184);
}

// tqBasicToolPartsAnalyser

template <class T>
tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::tqBasicToolPartsAnalyser(const PartList& parts) {
    VisitAll(parts, *this);
}

template <class T>
tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::~tqBasicToolPartsAnalyser() = default;

template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::Visit(const tqHolderDefinition<T>&) {
    ++m_holders;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::Visit(const tqArborDefinition<T>&) {
    ++m_arbors;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::Visit(const tqNonCuttingPartDefinition<T>&) {
    ++m_nonCutting;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::Visit(const tqCuttingPartDefinition<T>&) {
    ++m_cutting;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsAnalyser::Visit(const tqToolPartDefinition<T>&) {
    throw tqcadcamException(2184);
}

// tqBasicToolPartsIdentifier

template <class T>
tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::tqBasicToolPartsIdentifier(const PartList& parts) {
    VisitAll(parts, *this);
}

template <class T>
tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::~tqBasicToolPartsIdentifier() = default;

template <class T>
typename tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Composition
tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::GetComposition() const {
    if (m_mounting) return PC_WITH_MOUNTING;
    if (m_cutting && m_nonCutting) return m_cuttingAboveNonCutting ? PC_MIXED : PC_CUTTING_THEN_NON_CUTTING;
    if (m_cutting) return PC_CUTTING_ONLY;
    if (m_nonCutting) return PC_NON_CUTTING_ONLY;
    return PC_EMPTY;
}

template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Visit(const tqHolderDefinition<T>&) {
    m_mounting = true;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Visit(const tqArborDefinition<T>&) {
    m_mounting = true;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Visit(const tqNonCuttingPartDefinition<T>&) {
    m_nonCutting = true;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Visit(const tqCuttingPartDefinition<T>&) {
    if (m_nonCutting) m_cuttingAboveNonCutting = true;
    m_cutting = true;
}
template <class T>
void tqToolPartsContainer<T>::tqBasicToolPartsIdentifier::Visit(const tqToolPartDefinition<T>&) {
    throw tqcadcamException(2184);
}

// tqToolPartsContainer

template <class T>
tqToolPartsContainer<T>::tqToolPartsContainer() = default;

template <class T>
tqToolPartsContainer<T>::tqToolPartsContainer(const PartList& parts) : m_parts(parts) {
    tqToolPartsValidator::Validate(m_parts);
}

template <class T>
tqToolPartsContainer<T>::tqToolPartsContainer(const tqToolPartsContainer&) = default;
template <class T>
tqToolPartsContainer<T>& tqToolPartsContainer<T>::operator=(const tqToolPartsContainer&) = default;
template <class T>
tqToolPartsContainer<T>::~tqToolPartsContainer() = default;

template <class T>
const typename tqToolPartsContainer<T>::PartPointer& tqToolPartsContainer<T>::GetPart(std::size_t index) const {
    if (index >= m_parts.size()) {
        throw misc::tqIdxRangeException<std::uint64_t>(u"Tool part index out of range", m_parts.size(), index);
    }
    return m_parts[index];
}

template <class T>
tqToolPartsContainer<T> tqToolPartsContainer<T>::Clone() const {
    tqToolPartsContainer copy;
    copy.m_parts = tqToolPartsCloner::Clone(m_parts);
    return copy;
}

template <class T>
bool tqToolPartsContainer<T>::operator==(const tqToolPartsContainer& other) const {
    if (m_parts.size() != other.m_parts.size()) return false;
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        if (!tqToolPartDefinition<T>::AreEqual(m_parts[i], other.m_parts[i])) return false;
    }
    return true;
}

template class tqToolPartsContainer<double>;
template class tqToolPartsContainer<float>;

}  // namespace cadcam
