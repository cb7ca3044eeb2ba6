// tqToolCloner: one copy per class of tqToolList.
#include "cadcam/tools/tqtoolcloner.h"

#include "cadcam/tools/tqalltools.h"
#include "misc/tqexception.h"

namespace cadcam {

template <class T>
void tqToolCloner::OnVisit(const T& tool) {
    m_clone = misc::tqAutoPointer<tqTool>(new T(tool));
}

void tqToolCloner::OnVisitBase(const tqTool&) {
    misc::ThrowFailure(u"cadcam::tqToolCloner::Visit", u"Trying to clone an abstract type.");
}

tqToolCloner::tqToolCloner() { misc::detail_::KeepSlots<tqToolCloner>(static_cast<tqToolList*>(nullptr)); }
tqToolCloner::~tqToolCloner() = default;

misc::tqAutoPointer<tqTool> tqToolCloner::Clone(const tqTool& tool) {
    tqToolCloner cloner;
    tool.AcceptVisitor(cloner);
    return cloner.m_clone;
}

}  // namespace cadcam
