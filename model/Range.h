#pragma once

#include "model/DocumentOrigin.h"

/// One interval of valid values, both bounds included. A plain value; no order of the bounds is enforced.
class Range : public FromDocument
{
public:
    [[nodiscard]] double getRangeMin() const { return m_rangeMin; }
    void setRangeMin(double rangeMin) { m_rangeMin = rangeMin; }

    [[nodiscard]] double getRangeMax() const { return m_rangeMax; }
    void setRangeMax(double rangeMax) { m_rangeMax = rangeMax; }

private:
    double m_rangeMin = 0;
    double m_rangeMax = 0;
};
