// tqToolPartsContainer: the parts of a tool in their order, and the visitors that check, sort, copy and count them.
#pragma once

#include <cstddef>
#include <vector>

#include "cadcam/tools/parts/tqtoolpartdefinition.h"
#include "cadcam/tools/parts/tqtoolpartdefinitionvisitor.h"
#include "misc/export.h"
#include "misc/tqautopointer.h"

namespace cadcam {

/// The cutting and non-cutting parts of a tool, shared, in order from the tip up. Holders and arbors are not
/// parts of this list (a tool carries them apart). A copy shares the parts; Clone copies them.
template <class T>
class TQ_EXPORT tqToolPartsContainer {
public:
    using PartPointer = misc::tqAutoPointer<tqToolPartDefinition<T>>;
    using PartList = std::vector<PartPointer>;

    /// Accepts cutting and non-cutting parts; a holder, an arbor or the abstract base fails with
    /// tqcadcamException 2184. Checks nothing else: each part checked its own solid when it was made.
    class TQ_EXPORT tqToolPartsValidator : public tqToolPartDefinitionVisitor<T> {
    public:
        tqToolPartsValidator();
        ~tqToolPartsValidator() override;
        /// Lets every part accept a validator; a null entry throws "Accessing TQ_NULL pointer".
        static void Validate(const PartList& parts);

        /// Fails with 2184.
        [[noreturn]] void Visit(const tqHolderDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqArborDefinition<T>& part) override;
        void Visit(const tqNonCuttingPartDefinition<T>& part) override;
        void Visit(const tqCuttingPartDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqToolPartDefinition<T>& part) override;
    };

    /// Sorts a list of any roles into one list per role, keeping the order and sharing the parts. The abstract
    /// base fails with 2184, a null entry with "Accessing TQ_NULL pointer". A part that accepts the extractor
    /// directly, with no shared pointer at hand, is sorted as a clone.
    class TQ_EXPORT tqToolPartsExtractor : public tqToolPartDefinitionVisitor<T> {
    public:
        /// Sorts parts.
        explicit tqToolPartsExtractor(const PartList& parts);
        ~tqToolPartsExtractor() override;

        /// Sorts one more part to the end of its role's list.
        void Add(const PartPointer& part);

        const PartList& GetCuttingParts() const { return m_cutting; }
        const PartList& GetNonCuttingParts() const { return m_nonCutting; }
        const PartList& GetArbors() const { return m_arbors; }
        const PartList& GetHolders() const { return m_holders; }

        void Visit(const tqHolderDefinition<T>& part) override;
        void Visit(const tqArborDefinition<T>& part) override;
        void Visit(const tqNonCuttingPartDefinition<T>& part) override;
        void Visit(const tqCuttingPartDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqToolPartDefinition<T>& part) override;

    private:
        /// Appends the part being visited to list.
        void Keep(PartList& list, const tqToolPartDefinition<T>& part);

        const PartPointer* m_current = nullptr;
        PartList m_cutting;
        PartList m_nonCutting;
        PartList m_arbors;
        PartList m_holders;
    };

    /// Deep copies by role: a part of the same role with a clone of its solid. The abstract base fails with 2184.
    class TQ_EXPORT tqToolPartsCloner : public tqToolPartDefinitionVisitor<T> {
    public:
        tqToolPartsCloner();
        ~tqToolPartsCloner() override;
        /// A clone of every part, in order; a null entry throws "Accessing TQ_NULL pointer".
        static PartList Clone(const PartList& parts);
        /// The clone made by the last visit; null before any.
        const PartPointer& GetClone() const { return m_clone; }

        void Visit(const tqHolderDefinition<T>& part) override;
        void Visit(const tqArborDefinition<T>& part) override;
        void Visit(const tqNonCuttingPartDefinition<T>& part) override;
        void Visit(const tqCuttingPartDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqToolPartDefinition<T>& part) override;

    private:
        PartPointer m_clone;
    };

    /// Counts the parts of a list by role. The abstract base fails with 2184, a null entry with
    /// "Accessing TQ_NULL pointer".
    class TQ_EXPORT tqBasicToolPartsAnalyser : public tqToolPartDefinitionVisitor<T> {
    public:
        /// Counts parts.
        explicit tqBasicToolPartsAnalyser(const PartList& parts);
        ~tqBasicToolPartsAnalyser() override;

        std::size_t GetCuttingPartCount() const { return m_cutting; }
        std::size_t GetNonCuttingPartCount() const { return m_nonCutting; }
        std::size_t GetArborCount() const { return m_arbors; }
        std::size_t GetHolderCount() const { return m_holders; }
        /// Every part counted.
        std::size_t GetCount() const { return m_cutting + m_nonCutting + m_arbors + m_holders; }

        void Visit(const tqHolderDefinition<T>& part) override;
        void Visit(const tqArborDefinition<T>& part) override;
        void Visit(const tqNonCuttingPartDefinition<T>& part) override;
        void Visit(const tqCuttingPartDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqToolPartDefinition<T>& part) override;

    private:
        std::size_t m_cutting = 0;
        std::size_t m_nonCutting = 0;
        std::size_t m_arbors = 0;
        std::size_t m_holders = 0;
    };

    /// Tells how a list is composed, read from the tip up. The abstract base fails with 2184, a null entry
    /// with "Accessing TQ_NULL pointer".
    class TQ_EXPORT tqBasicToolPartsIdentifier : public tqToolPartDefinitionVisitor<T> {
    public:
        enum Composition : int {
            PC_EMPTY = 0,                     ///< no parts
            PC_CUTTING_ONLY = 1,              ///< cutting parts and nothing else
            PC_NON_CUTTING_ONLY = 2,          ///< non-cutting parts and nothing else
            PC_CUTTING_THEN_NON_CUTTING = 3,  ///< both, every cutting part below every non-cutting one
            PC_MIXED = 4,                     ///< both, some cutting part above a non-cutting one
            PC_WITH_MOUNTING = 5              ///< an arbor or a holder among the parts
        };

        /// Reads parts.
        explicit tqBasicToolPartsIdentifier(const PartList& parts);
        ~tqBasicToolPartsIdentifier() override;

        Composition GetComposition() const;

        void Visit(const tqHolderDefinition<T>& part) override;
        void Visit(const tqArborDefinition<T>& part) override;
        void Visit(const tqNonCuttingPartDefinition<T>& part) override;
        void Visit(const tqCuttingPartDefinition<T>& part) override;
        /// Fails with 2184.
        [[noreturn]] void Visit(const tqToolPartDefinition<T>& part) override;

    private:
        bool m_cutting = false;
        bool m_nonCutting = false;
        bool m_cuttingAboveNonCutting = false;
        bool m_mounting = false;
    };

    /// No parts.
    tqToolPartsContainer();
    /// Shares parts, in order, once tqToolPartsValidator accepted each of them.
    explicit tqToolPartsContainer(const PartList& parts);
    tqToolPartsContainer(const tqToolPartsContainer&);
    tqToolPartsContainer& operator=(const tqToolPartsContainer&);
    ~tqToolPartsContainer();

    const PartList& GetParts() const { return m_parts; }
    std::size_t GetCount() const { return m_parts.size(); }
    bool IsEmpty() const { return m_parts.empty(); }
    /// The part at index; an index past the end throws tqIdxRangeException.
    const PartPointer& GetPart(std::size_t index) const;

    /// A container of clones of the parts (tqToolPartsCloner).
    tqToolPartsContainer Clone() const;

    /// Part by part in order: the same role, units and equal solids.
    bool operator==(const tqToolPartsContainer& other) const;
    bool operator!=(const tqToolPartsContainer& other) const { return !(*this == other); }

private:
    PartList m_parts;
};

extern template class TQ_EXPORT tqToolPartsContainer<double>;
extern template class TQ_EXPORT tqToolPartsContainer<float>;

}  // namespace cadcam
