// WorkOffset: equality by name and matrix only.
#include "tqWorkRig/model/workoffset.h"

#include <limits>

#include "support/tqtest.h"

using tqWorkRig::WorkOffset;

TEST(WorkOffset, ComparesNameAndMatrixButNotTheDisplayName) {
    WorkOffset::Matrix matrix = WorkOffset::Matrix::Translation(10, 20, 30);
    WorkOffset a(matrix, u"G54", u"front"), b(matrix, u"G54", u"back");
    b.SetAttribute(u"k", u"v");
    EXPECT_TRUE(a == b);
    b.GetMatrix()(0, 1) = 0.5;
    EXPECT_FALSE(a == b);
    b.SetMatrix(matrix);
    b.SetName(u"G55");
    EXPECT_FALSE(a == b);

    matrix(3, 3) = std::numeric_limits<double>::quiet_NaN();
    a.SetMatrix(matrix);
    const WorkOffset copy(a);
    EXPECT_TRUE(a == a);
    EXPECT_FALSE(a == copy);
}
