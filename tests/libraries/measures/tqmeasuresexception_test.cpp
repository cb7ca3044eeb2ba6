// tqmeasuresException: the text follows from the code.
#include "measures/tqmeasuresexception.h"

#include "support/tqtest.h"

using measures::tqmeasuresException;

TEST(TqmeasuresException, TextFollowsFromTheCode) {
    EXPECT_EQ(tqmeasuresException(2141).GetMessage(), misc::tqstring(u"Unknown Units"));
    EXPECT_EQ(tqmeasuresException(2146).GetMessage(), misc::tqstring(u"Undefined ScaleFactor"));
    EXPECT_EQ(tqmeasuresException(2146).GetCode(), 2146);
    for (const std::int32_t code : {0, 1, 2140, 2142, 2145, 2147, -2141})
        EXPECT_EQ(tqmeasuresException(code).GetMessage(), misc::tqstring(u"Unknown error.")) << code;
    EXPECT_EQ(tqmeasuresException(9999).GetCode(), 9999);
}
