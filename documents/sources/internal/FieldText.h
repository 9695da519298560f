#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <limits>

class TDcSourceField;

/// The texts that a source field is made of, whatever the file.
namespace FieldText
{
/// The shortest text that reads back as \a value. Whole numbers come without decimal point.
[[nodiscard]] QString number(double value);

/// Appends a code and its label to \a categories in the form that the layer reads: entries separated by tabs,
/// each a code, a blank, a label. Line breaks and tabs in the label become blanks. Returns false and appends
/// nothing if the code is empty or holds white space, since the layer would take it apart.
bool appendCategory(QString &categories, const QString &code, const QString &label);
} // namespace FieldText

/// Codes in the order in which they came, each once.
class CodeList
{
public:
    /// An empty code is none.
    void append(const QString &code);
    void append(const CodeList &codes);
    /// All of them, separated by tabs.
    [[nodiscard]] QString text() const;

private:
    QStringList m_codes;
    QSet<QString> m_known;
};

/// What the numbers of one field have in common, as far as they have been seen.
class ObservedNumbers
{
public:
    void add(double value);
    /// Single precision: 0.1f has one decimal, not nine.
    void add(float value);
    /// For numbers whose decimals are known. Must be finite; the others pass over what is not.
    void add(double value, int decimals);

    [[nodiscard]] bool isEmpty() const { return m_min > m_max; }
    [[nodiscard]] int decimals() const { return m_decimals; }
    [[nodiscard]] bool fitsInteger() const;
    /// Characters that the widest number takes with \a decimals decimals.
    [[nodiscard]] int width(int decimals) const;
    /// Writes the bounds into \a field, if there are any.
    void writeRange(TDcSourceField &field) const;

private:
    double m_min = std::numeric_limits<double>::infinity();
    double m_max = -std::numeric_limits<double>::infinity();
    int m_decimals = 0;
};
