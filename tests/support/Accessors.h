#pragma once

#include <QTest>

/// Checks that an object has \a before as its default, that the setter stores and that the getter answers
/// with what is stored.
#define CHECK_ACCESSORS(object, Property, before, after)                                                     \
    QCOMPARE((object).get##Property(), before);                                                              \
    (object).set##Property(after);                                                                           \
    QCOMPARE((object).get##Property(), after)
