#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

#include <stdexcept>

/// A value that raises a standard exception with \a what as its text when it is converted to anything that
/// documents hold.
struct Throwing {
    template <typename To>
    static To convert(const Throwing &)
    {
        throw std::runtime_error(what);
    }

    static constexpr auto what = "this value cannot be converted";
};
Q_DECLARE_METATYPE(Throwing)

[[nodiscard]] inline QVariant throwing()
{
    [[maybe_unused]] static const bool registered =
        QMetaType::registerConverter<Throwing, QString>(Throwing::convert<QString>)
        && QMetaType::registerConverter<Throwing, int>(Throwing::convert<int>)
        && QMetaType::registerConverter<Throwing, bool>(Throwing::convert<bool>)
        && QMetaType::registerConverter<Throwing, double>(Throwing::convert<double>)
        && QMetaType::registerConverter<Throwing, QVariantList>(Throwing::convert<QVariantList>)
        && QMetaType::registerConverter<Throwing, QVariantMap>(Throwing::convert<QVariantMap>);
    return QVariant::fromValue(Throwing());
}
