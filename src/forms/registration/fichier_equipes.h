#pragma once

#include <QString>

/// The text file of a competition's teams, in columns of fixed width, each line ended by CR LF. It is UTF-8 led by the
/// mark of that encoding: by it the spreadsheets of all desktops read the accents right, which the code page of one
/// system would show on that system alone, and any name can be written.
class FichierEquipes
{
public:
    static const QString nom;

    /// A line as it stands.
    void ligne(const QString &texte) { m_texte += texte + QStringLiteral("\r\n"); }
    /// The headings of the columns.
    void titres(const QString &equipe, const QString &societe, const QString &joueur, const QString &licence);
    /// The two lines of a member.
    void membre(const QString &joueur, const QString &licence, const QString &equipe, const QString &club);

    /// Writes the file anew, whole or not at all; gives the system's sentence when it cannot, otherwise nothing.
    QString ecrit(const QString &chemin) const;

private:
    QString m_texte;
};
