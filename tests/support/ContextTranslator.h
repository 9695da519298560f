#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, every translated text reads "<context>:<text>", which tells who translated it.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(context) + QLatin1Char(':') + QString::fromUtf8(text);
    }
};
