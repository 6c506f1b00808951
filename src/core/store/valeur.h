#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <variant>

namespace store {

/// What a field holds: Null, a whole number, a real number, a text, a yes/no or a date.
///
/// Reading converts where a conversion is natural: the text of a number, the leading number of a text, -1 and 0 for
/// yes and no. Reading a number, a yes/no or a date out of Null throws Erreur; the text of Null is empty.
class Valeur
{
public:
    Valeur() = default;
    Valeur(std::nullptr_t) {}
    Valeur(int valeur)
        : m_valeur(qint64(valeur))
    {
    }
    Valeur(qint64 valeur)
        : m_valeur(valeur)
    {
    }
    Valeur(double valeur)
        : m_valeur(valeur)
    {
    }
    Valeur(bool valeur)
        : m_valeur(valeur)
    {
    }
    Valeur(const QString &valeur)
        : m_valeur(valeur)
    {
    }
    Valeur(QStringView valeur)
        : m_valeur(valeur.toString())
    {
    }
    Valeur(const char16_t *valeur)
        : m_valeur(QString::fromUtf16(valeur))
    {
    }
    Valeur(QDate valeur)
        : m_valeur(valeur)
    {
    }
    template<typename T>
    Valeur(const std::optional<T> &valeur)
    {
        if (valeur)
            *this = Valeur(*valeur);
    }

    // What it holds, nothing converted.
    bool estNull() const { return std::holds_alternative<std::monostate>(m_valeur); }
    bool estEntier() const { return std::holds_alternative<qint64>(m_valeur); }
    bool estReel() const { return std::holds_alternative<double>(m_valeur); }
    bool estTexte() const { return std::holds_alternative<QString>(m_valeur); }
    bool estBooleen() const { return std::holds_alternative<bool>(m_valeur); }
    bool estDate() const { return std::holds_alternative<QDate>(m_valeur); }

    /// Whole number, the nearest one of a real number; a text gives its leading number, 0 when there is none. Throws on
    /// Null, and on a number too great for 64 bits.
    qint64 entier() const;
    /// Whole number, or \p defaut on Null.
    qint64 entierOu(qint64 defaut) const { return estNull() ? defaut : entier(); }
    /// Real number, converted like entier(). Throws on Null.
    double reel() const;
    /// Text as it is shown: numbers in decimal, dates as dd/MM/yyyy, yes/no as -1 or 0, Null as the empty text.
    QString texte() const;
    /// Yes/no; any number but 0 is yes. Throws on Null.
    bool booleen() const;
    /// Date; a text is read as one. Throws on Null and on what is no date.
    QDate date() const;

    bool operator==(const Valeur &) const = default;

private:
    std::variant<std::monostate, qint64, double, QString, bool, QDate> m_valeur;
};

/// Numeric reading of a text: its leading number, blanks skipped, 0 when there is none.
double Val(QStringView texte);

/// Whether the whole text reads as a number (sign, digits, one decimal point or comma, exponent), blanks around
/// it aside. The empty text does not.
bool EstNumerique(QStringView texte);

/// Date read from a text, day first: 5/3/2026, 05.03.26, 5-3-2026, 5/3 (of the year \p annee), or 2026-03-05; an
/// invalid date when the text is none. Two-digit years below 30 are of the 2000s.
QDate LireDate(QStringView texte, int annee = QDate::currentDate().year());

} // namespace store
