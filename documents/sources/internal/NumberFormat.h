#pragma once

#include <QString>

/// What a display format such as "F8.2", "%9.0g" or "BEST12." says about a field.
struct NumberFormat {
    int width = 0; ///< 0: not said.
    int decimals = -1; ///< -1: as many as the values have.

    [[nodiscard]] static NumberFormat parse(const QString &format);
};
