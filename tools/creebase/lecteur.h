#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <exception>
#include <optional>

/// Fault in a data file, told in one sentence that begins with the file's name and the line.
class ErreurDonnees : public std::exception
{
public:
    /// \p ligne counts from 1; 0 when the fault is that of the whole file.
    ErreurDonnees(const QString &fichier, int ligne, const QString &constat);

    const QString &phrase() const { return m_phrase; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_phrase;
    QByteArray m_utf8;
};

/// One row of a data file; an empty field is nothing at all.
struct LigneDonnees
{
    int numero = 0;
    QList<std::optional<QString>> champs;
};

/// A data file: named columns, and rows that have a field for each.
struct FichierDonnees
{
    QString nom;
    int ligneEntete = 0;
    QStringList colonnes;
    QList<LigneDonnees> lignes;

    /// Place of the column \p colonne, in any case of letters; -1 when the file has none of that name.
    qsizetype place(QStringView colonne) const;
};

/// Whole text of the UTF-8 file \p chemin. Throws ErreurDonnees when it cannot be read or is no UTF-8.
QString litTexte(const QString &chemin);

/// Reads a data file: UTF-8, columns separated by one tab, the first row names them. A field in double quotes keeps
/// the blanks at its ends, a quote inside is doubled. A field that begins with # ends the line as a comment.
/// Throws ErreurDonnees on a row that does not fit.
FichierDonnees litFichier(const QString &chemin);
