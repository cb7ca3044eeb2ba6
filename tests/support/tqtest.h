// Test helpers: exception checks that compare the message text, not only the type.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "misc/tqexception.h"

/// Runs statement and expects it to throw `type` whose GetMessage() equals `text` (a UTF-8 or UTF-16 literal).
#define EXPECT_THROW_MSG(statement, type, text)                                                              \
    do {                                                                                                    \
        bool tq_thrown_ = false;                                                                            \
        try {                                                                                               \
            statement;                                                                                      \
        } catch (const type& tq_e_) {                                                                       \
            tq_thrown_ = true;                                                                              \
            EXPECT_EQ(::misc::to_utf8(tq_e_.GetMessage()), ::misc::to_utf8(::misc::tqstring(text)));        \
        } catch (...) {                                                                                     \
            ADD_FAILURE() << "`" #statement "` threw an exception other than " #type;                       \
            tq_thrown_ = true;                                                                              \
        }                                                                                                   \
        if (!tq_thrown_) ADD_FAILURE() << "`" #statement "` did not throw " #type;                          \
    } while (false)

/// The same, also checking the code.
#define EXPECT_THROW_CODE(statement, type, code, text)                                                       \
    do {                                                                                                    \
        bool tq_thrown_ = false;                                                                            \
        try {                                                                                               \
            statement;                                                                                      \
        } catch (const type& tq_e_) {                                                                       \
            tq_thrown_ = true;                                                                              \
            EXPECT_EQ(tq_e_.GetCode(), (code));                                                             \
            EXPECT_EQ(::misc::to_utf8(tq_e_.GetMessage()), ::misc::to_utf8(::misc::tqstring(text)));        \
        } catch (...) {                                                                                     \
            ADD_FAILURE() << "`" #statement "` threw an exception other than " #type;                       \
            tq_thrown_ = true;                                                                              \
        }                                                                                                   \
        if (!tq_thrown_) ADD_FAILURE() << "`" #statement "` did not throw " #type;                          \
    } while (false)
