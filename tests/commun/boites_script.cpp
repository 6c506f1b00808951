#include "commun/boites_script.h"

#include <gtest/gtest.h>

BoitesScript::~BoitesScript()
{
    verifie();
}

void BoitesScript::attend(const QString &partie, ReponseBoite reponse)
{
    m_attendues.push_back({.partie = partie, .reponse = reponse});
}

void BoitesScript::attendSaisie(const QString &partie, const std::optional<QString> &saisie)
{
    m_attendues.push_back({.partie = partie, .saisie = true, .texteSaisi = saisie});
}

void BoitesScript::verifie()
{
    for (const Attendue &attendue : m_attendues)
        ADD_FAILURE() << "box never shown: " << attendue.partie.toStdString();
    m_attendues.clear();
}

std::optional<BoitesScript::Attendue> BoitesScript::suivante(const QString &texte, const QString &titre, bool saisie)
{
    compte();
    m_textes += texte;
    m_titre = titre;
    if (m_attendues.empty()) {
        ADD_FAILURE() << "unexpected box: " << texte.toStdString();
        return std::nullopt;
    }
    const Attendue attendue = m_attendues.front();
    m_attendues.pop_front();
    EXPECT_EQ(attendue.saisie, saisie) << texte.toStdString();
    EXPECT_TRUE(texte.contains(attendue.partie))
        << "expected: " << attendue.partie.toStdString() << "\nshown: " << texte.toStdString();
    return attendue;
}

ReponseBoite BoitesScript::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    const int boutons = drapeaux & 0x7;
    const bool question = boutons == vbYesNo || boutons == vbYesNoCancel;
    const std::optional<Attendue> attendue = suivante(texte, titre, false);
    if (!attendue)
        return question ? ReponseBoite::Non : ReponseBoite::OK;
    EXPECT_EQ(question, attendue->reponse != ReponseBoite::OK) << "no such button: " << texte.toStdString();
    EXPECT_TRUE(attendue->reponse != ReponseBoite::Annuler || boutons == vbYesNoCancel) << texte.toStdString();
    return attendue->reponse;
}

std::optional<QString> BoitesScript::InputBox(const QString &texte, const QString &titre)
{
    const std::optional<Attendue> attendue = suivante(texte, titre, true);
    return attendue ? attendue->texteSaisi : std::nullopt;
}
