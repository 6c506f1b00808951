#pragma once

#include <QString>

/// Name of a form. The constants of the program's forms make a wrong one an error of the compiler; a text
/// becomes one by its constructor only, and must outlive it.
class NomForme
{
public:
    explicit constexpr NomForme(QStringView texte)
        : m_texte(texte)
    {
    }

    QString texte() const { return m_texte.toString(); }
    /// A name may be read as a text.
    operator QString() const { return texte(); }

    friend bool operator==(NomForme un, NomForme autre) { return un.m_texte == autre.m_texte; }
    friend bool operator==(const QString &texte, NomForme nom) { return texte == nom.m_texte; }

private:
    QStringView m_texte;
};
