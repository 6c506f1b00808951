#include "lecteur.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

ErreurDonnees::ErreurDonnees(const QString &fichier, int ligne, const QString &constat)
    : m_phrase(ligne > 0 ? u"%1:%2 : %3"_qs.arg(fichier).arg(ligne).arg(constat) : u"%1 : %2"_qs.arg(fichier, constat))
    , m_utf8(m_phrase.toUtf8())
{
}

qsizetype FichierDonnees::place(QStringView colonne) const
{
    for (qsizetype i = 0; i < colonnes.size(); ++i) {
        if (colonne.compare(colonnes[i], Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

QString litTexte(const QString &chemin)
{
    const QString nom = QFileInfo(chemin).fileName();
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw ErreurDonnees(nom, 0, u"lecture impossible (%1)"_qs.arg(fichier.errorString()));
    QStringDecoder decodeur(QStringDecoder::Utf8);
    QString texte = decodeur(fichier.readAll());
    if (decodeur.hasError())
        throw ErreurDonnees(nom, 0, u"le texte n'est pas en UTF-8"_qs);
    return texte;
}

namespace {

/// Cuts one line into its fields.
class Decoupe
{
public:
    Decoupe(const QString &fichier, int numero, QStringView ligne)
        : m_fichier(fichier)
        , m_numero(numero)
        , m_ligne(ligne)
    {
    }

    QList<std::optional<QString>> champs()
    {
        QList<std::optional<QString>> lus;
        for (bool suite = true; suite;) {
            passeBlancs();
            if (regarde() == u'#')
                break;
            lus.append(regarde() == u'"' ? entreGuillemets() : nu());
            suite = m_place < m_ligne.size();
            ++m_place;
        }
        return lus;
    }

private:
    QChar regarde() const { return m_place < m_ligne.size() ? m_ligne[m_place] : QChar(); }

    void passeBlancs()
    {
        while (regarde() == u' ')
            ++m_place;
    }

    std::optional<QString> nu()
    {
        const qsizetype tabulation = m_ligne.indexOf(u'\t', m_place);
        const qsizetype fin = tabulation < 0 ? m_ligne.size() : tabulation;
        const QString texte = m_ligne.sliced(m_place, fin - m_place).trimmed().toString();
        m_place = fin;
        return texte.isEmpty() ? std::nullopt : std::optional(texte);
    }

    QString entreGuillemets()
    {
        QString texte;
        for (++m_place;; ++m_place) {
            if (m_place >= m_ligne.size())
                throw ErreurDonnees(m_fichier, m_numero, u"un guillemet n'est pas refermé"_qs);
            if (m_ligne[m_place] == u'"') {
                ++m_place;
                if (regarde() != u'"')
                    break;
            }
            texte += m_ligne[m_place];
        }
        passeBlancs();
        if (m_place < m_ligne.size() && m_ligne[m_place] != u'\t')
            throw ErreurDonnees(m_fichier, m_numero, u"du texte suit le guillemet fermant"_qs);
        return texte;
    }

    const QString &m_fichier;
    int m_numero;
    QStringView m_ligne;
    qsizetype m_place = 0;
};

QStringList entete(const QString &fichier, int numero, const QList<std::optional<QString>> &champs)
{
    QStringList noms;
    for (const std::optional<QString> &champ : champs) {
        if (!champ)
            throw ErreurDonnees(fichier, numero, u"une colonne n'a pas de nom"_qs);
        if (noms.contains(*champ, Qt::CaseInsensitive))
            throw ErreurDonnees(fichier, numero, u"la colonne « %1 » est nommée deux fois"_qs.arg(*champ));
        noms.append(*champ);
    }
    return noms;
}

} // namespace

FichierDonnees litFichier(const QString &chemin)
{
    FichierDonnees lu;
    lu.nom = QFileInfo(chemin).fileName();
    const QString texte = litTexte(chemin);
    int numero = 0;
    for (QStringView ligne : QStringView(texte).split(u'\n')) {
        ++numero;
        if (ligne.endsWith(u'\r'))
            ligne.chop(1);
        if (ligne.trimmed().isEmpty())
            continue;
        const QList<std::optional<QString>> champs = Decoupe(lu.nom, numero, ligne).champs();
        if (champs.isEmpty())
            continue;
        if (lu.colonnes.isEmpty()) {
            lu.colonnes = entete(lu.nom, numero, champs);
            lu.ligneEntete = numero;
        } else if (champs.size() != lu.colonnes.size()) {
            throw ErreurDonnees(lu.nom, numero,
                                u"%1 colonne(s) au lieu de %2"_qs.arg(champs.size()).arg(lu.colonnes.size()));
        } else {
            lu.lignes.append({numero, champs});
        }
    }
    if (lu.colonnes.isEmpty())
        throw ErreurDonnees(lu.nom, 0, u"la ligne qui nomme les colonnes manque"_qs);
    return lu;
}
