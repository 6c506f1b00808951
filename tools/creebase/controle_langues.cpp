#include "controle_langues.h"

#include <QLocale>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace {

struct Message
{
    int ligne;
    QString texte;
};

using Messages = QMap<int, Message>;

constexpr int equipe1 = 24;
constexpr int largeurEquipe1 = 22;
constexpr int exempt = 42;
constexpr int premierMot = 43;
constexpr int dernierMot = 45;
constexpr int formatDate = 117;
constexpr int locale = 128;
/// Compared with texts that are the same in every language: the round's label and the mixed club.
constexpr int fixes[] = {64, 80};

Messages lit(const FichierDonnees &fichier)
{
    Messages messages;
    for (const LigneDonnees &ligne : fichier.lignes)
        messages.insert(ligne.champs[fichier.place(u"num")]->toInt(),
                        {ligne.numero, ligne.champs[fichier.place(u"mes")].value_or(QString())});
    return messages;
}

/// Blanks before and behind the text, with a mark between them.
QString bords(const QString &texte)
{
    qsizetype debut = 0;
    while (debut < texte.size() && texte[debut].isSpace())
        ++debut;
    qsizetype fin = texte.size();
    while (fin > debut && texte[fin - 1].isSpace())
        --fin;
    return texte.left(debut) + u'|' + texte.mid(fin);
}

/// What the message does not keep to; empty when it is right.
QString defaut(int numero, const QString &texte, const Messages &langue, const Messages &reference)
{
    if (texte.trimmed().isEmpty())
        return u"est vide"_qs;
    if (bords(texte) != bords(reference[numero].texte))
        return u"n'a pas les espaces de la langue de référence à ses bouts"_qs;
    if (std::ranges::find(fixes, numero) != std::end(fixes) && texte != reference[numero].texte)
        return u"est le même dans toutes les langues : %1"_qs.arg(reference[numero].texte);
    if (numero == equipe1 && texte.size() > largeurEquipe1)
        return u"a plus de %1 signes"_qs.arg(largeurEquipe1);
    if (numero >= premierMot && numero <= dernierMot) {
        for (int autre = exempt; autre < numero; ++autre) {
            if (langue[autre].texte.compare(texte, Qt::CaseInsensitive) == 0)
                return u"est aussi le message %1"_qs.arg(autre);
        }
    }
    if (numero == formatDate) {
        static const QRegularExpression jourEnTete(u"^dd[-./]mm[-./]yyyy$"_qs);
        if (!jourEnTete.match(texte).hasMatch())
            return u"n'est pas un format de date, jour en tête, de 10 signes"_qs;
    }
    if (numero == locale && QLocale(texte).name() != texte)
        return u"n'est pas une langue du système"_qs;
    return {};
}

} // namespace

void controleMessages(const FichierDonnees &langue, const FichierDonnees &reference)
{
    const Messages messages = lit(langue);
    const Messages attendus = lit(reference);
    for (auto attendu = attendus.begin(); attendu != attendus.end(); ++attendu) {
        if (!messages.contains(attendu.key()))
            throw ErreurDonnees(langue.nom, 0, u"le message %1 manque"_qs.arg(attendu.key()));
    }
    for (auto message = messages.begin(); message != messages.end(); ++message) {
        if (!attendus.contains(message.key()))
            throw ErreurDonnees(langue.nom, message->ligne,
                                u"le message %1 n'est pas dans %2"_qs.arg(message.key()).arg(reference.nom));
        const QString constat = defaut(message.key(), message->texte, messages, attendus);
        if (!constat.isEmpty())
            throw ErreurDonnees(langue.nom, message->ligne, u"le message %1 %2"_qs.arg(message.key()).arg(constat));
    }
}
