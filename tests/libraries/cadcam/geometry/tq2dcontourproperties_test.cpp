// tq2dContourProperties and tqIsClosedContinuousAndSimple: joints, neighbours, non-neighbours and area.
#include "cadcam/geometry/tq2dcontourproperties.h"

#include <cmath>
#include <limits>

#include "cadcam/geometry/tq2darc.h"
#include "cadcam/geometry/tq2dline.h"
#include "cadcam/geometry/tq2dpoint.h"
#include "support/tqtest.h"

using namespace cadcam;
using Contour = tq2dContour<double>;
using Props = tq2dContourProperties<double>;
using P = tqTPoint2d<double>;

namespace {

template <class T>
using Item = misc::tqAutoPointer<tq2dGeometry<T>>;

/// Appends lines through the points, and arcs where a centre is given.
template <class T = double>
class Chain {
public:
    Chain(T x, T y) : m_at(x, y) {}
    Chain& L(T x, T y) {
        m_c.Append(Item<T>(new tq2dLine<T>(m_at, {x, y})));
        m_at = {x, y};
        return *this;
    }
    Chain& A(T x, T y, T cx, T cy, bool ccw = true) {
        m_c.Append(Item<T>(new tq2dArc<T>(m_at, {x, y}, {cx, cy},
                                          ccw ? tqArcDirection::Counterclockwise : tqArcDirection::Clockwise)));
        m_at = {x, y};
        return *this;
    }
    const tq2dContour<T>& Get() const { return m_c; }

private:
    tqTPoint2d<T> m_at;
    tq2dContour<T> m_c;
};

}  // namespace

TEST(Tq2dContourProperties, ToleranceFollowsTheLargestCoordinate) {
    EXPECT_EQ(Props::Tolerance(0.5), 1e-9);
    EXPECT_GT(tq2dContourProperties<float>::Tolerance(1), 1e-6f);  // single precision cannot resolve 1e-9
    // Arc centres count: a shallow arc far from its centre.
    const Props p(Chain<>(0, 0).A(0, 2, -99, 1).Get());
    EXPECT_NEAR(p.GetTolerance(), 1e-9 * 99, 1e-20);
    EXPECT_DOUBLE_EQ(p.GetBox().GetMax().x, std::sqrt(99.0 * 99 + 1) - 99);
    EXPECT_THROW_MSG(Props(Chain<>(0, 0).L(std::nan(""), 1).Get()), misc::tqException,
                     "Contour items must be finite lines and arcs.");
}

TEST(Tq2dContourProperties, ClosedContinuousAndSimple) {
    // Square, D shape (two neighbours sharing both ends), a circle of two arcs, a stadium of tangent joints.
    const Contour good[] = {Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).L(0, 0).Get(),
                            Chain<>(0, 0).L(4, 0).A(0, 0, 2, 0).Get(),
                            Chain<>(1, 0).A(-1, 0, 0, 0).A(1, 0, 0, 0).Get(),
                            Chain<>(0, 0).L(4, 0).A(4, 2, 4, 1).L(0, 2).A(0, 0, 0, 1).Get()};
    for (const Contour& c : good) EXPECT_TRUE(tqIsClosedContinuousAndSimple(c));
    EXPECT_TRUE(tqIsClosedContinuousAndSimple(Chain<float>(0, 0).L(4, 0).A(4, 2, 4, 1).L(0, 2).A(0, 0, 0, 1).Get()));

    Contour withPoint = good[0];
    withPoint.Append(Item<double>(new tq2dPoint<double>(P(0, 0))));
    Contour loneLine;
    loneLine.Append(Item<double>(new tq2dLine<double>(P(1, 1), P(1, 1))));
    const Contour bad[] = {
        Contour(), withPoint, loneLine,
        Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).Get(),                        // open
        Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).L(0, 5e-9).Get(),             // ends 5e-9 short, ε = 4e-9
        Chain<>(0, 0).L(4, 4).L(4, 0).L(0, 4).L(0, 0).Get(),                // bow tie
        Chain<>(0, 0).L(4, 0).L(0, 0).Get(),                                // folds back on itself
        Chain<>(0, 0).L(4, 0).L(4, 4).L(4, 2).L(0, 2).L(0, 0).Get(),        // neighbours overlapping
        Chain<>(1, 0).A(-1, 0, 0, 0).A(1, 0, 0, 0, false).Get(),            // the same half circle twice
        Chain<>(0, 0).L(4, 0).L(4, 4).L(2, 1e-9).L(0, 4).L(0, 0).Get(),     // a vertex touching a far edge
    };
    for (const Contour& c : bad) EXPECT_FALSE(tqIsClosedContinuousAndSimple(c));
}

TEST(Tq2dContourProperties, JointsAreCheckedWithinTolerance) {
    // ε = 4e-9 for these: a gap of 3e-9 is a joint, 5e-9 is a break.
    EXPECT_TRUE(Props(Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).L(0, 3e-9).Get()).IsClosed());
    Contour broken = Chain<>(0, 0).L(4, 0).Get();
    broken.Append(Item<double>(new tq2dLine<double>(P(4, 5e-9), P(4, 4))));
    EXPECT_FALSE(Props(broken).IsContinuous());
    EXPECT_TRUE(Props(Chain<>(0, 0).L(4, 0).L(4, 4).Get()).IsContinuous());
    // Open, first and last are not neighbours: a chain ending on its start touches itself.
    const Props square(Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).L(0, 0).Get());
    EXPECT_TRUE(square.IsSimple(true));
    EXPECT_FALSE(square.IsSimple(false));
    // A tangent line and arc meet only at their joint; a line re-entering the arc's circle meets it again.
    EXPECT_TRUE(Props(Chain<>(0, 0).L(3, 0).A(5, 2, 3, 2).Get()).IsSimple(false));
    EXPECT_FALSE(Props(Chain<>(0, 4).A(4, 0, 0, 0, false).L(1, 6).Get()).IsSimple(false));
}

TEST(Tq2dContourProperties, SignedAreaCountsArcSegments) {
    EXPECT_EQ(Props(Chain<>(0, 0).L(4, 0).L(4, 4).L(0, 4).Get()).GetSignedArea(), 16.0);
    EXPECT_EQ(Props(Chain<>(0, 4).L(4, 4).L(4, 0).L(0, 0).Get()).GetSignedArea(), -16.0);
    EXPECT_DOUBLE_EQ(Props(Chain<>(1, 0).A(-1, 0, 0, 0).A(1, 0, 0, 0).Get()).GetSignedArea(), M_PI);
    // A half disc closed by its chord, run clockwise.
    EXPECT_DOUBLE_EQ(Props(Chain<>(-2, 0).A(2, 0, 0, 0, false).Get()).GetSignedArea(), -2 * M_PI);
}
