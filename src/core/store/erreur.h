#pragma once

#include <QString>

#include <exception>

namespace store {

/// Failure of the store, told in one French sentence that can be shown as it stands.
class Erreur : public std::exception
{
public:
    /// Numbers above 0 are those of the SQLite engine; the store's own are negative.
    enum Numero {
        DisquePlein = 13, ///< The engine's own number for it.
        FichierAbsent = -1,
        FichierEtranger = -2,
        MotDePasse = -3,
        FichierEndommage = -4,
        DossierProtege = -5,
        JournalEtranger = -6, ///< The base is whole, but the journal beside it is not its own.
        VersionFuture = -7, ///< The base was made by a later version of the program.
        Instruction = -10,
        ObjetInconnu = -11,
        ChampInconnu = -12,
        PasDeLigne = -13,
        LectureSeule = -14,
        Ferme = -15,
        ValeurNulle = -20,
        Conversion = -21,
        Depassement = -22,
    };

    Erreur(int numero, const QString &phrase);

    /// One of the numbers above, or the engine's own code, above 0.
    int numero() const { return m_numero; }
    /// One French sentence for the operator.
    const QString &phrase() const { return m_phrase; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    int m_numero;
    QString m_phrase;
    QByteArray m_utf8;
};

} // namespace store
