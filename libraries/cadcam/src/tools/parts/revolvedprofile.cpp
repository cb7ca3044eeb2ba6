// RevolvedProfileOf: a visitor that answers only for revolved solids.
#include "tools/parts/revolvedprofile.h"

#include <type_traits>

#include "cadcam/tools/solids/tqrevolvedsoliddefinition.h"
#include "cadcam/tools/solids/tqsoliddefinitionvisitorgetter.h"
#include "cadcam/tools/tqcadcamexception.h"
#include "misc/tqtypedvisitor.h"

namespace cadcam {
namespace detail_ {
namespace {

template <class T>
class ProfileFinder : public misc::detail_::TypedVisitor<ProfileFinder<T>, tqSolidDefinitionVisitorGetter<T>,
                                                         tqSolidDefinition<T>, tqSolidDefinitionList<T>> {
public:
    template <class U>
    void OnVisit(const U& solid) {
        if constexpr (std::is_same<U, tqRevolvedSolidDefinition<T>>::value) m_profile = &solid.GetProfile();
    }
    [[noreturn]] void OnVisitBase(const tqSolidDefinition<T>&) { throw tqcadcamException(2183); }

    const tq2dContour<T>* m_profile = nullptr;
};

}  // namespace

template <class T>
const tq2dContour<T>* RevolvedProfileOf(const tqSolidDefinition<T>& solid) {
    ProfileFinder<T> finder;
    solid.AcceptVisitor(finder);
    return finder.m_profile;
}

template const tq2dContour<double>* RevolvedProfileOf(const tqSolidDefinition<double>&);
template const tq2dContour<float>* RevolvedProfileOf(const tqSolidDefinition<float>&);

}  // namespace detail_
}  // namespace cadcam
