#include "impressions.h"

#include <QDir>
#include <QFileInfo>

namespace demonstration {

namespace {

const QString dialogue = u"I_tirage"_qs;

} // namespace

QStringList Impressions::fichiers()
{
    return {u"tirage-tour1.pdf"_qs, u"classement.pdf"_qs, u"classement-detail.pdf"_qs};
}

void Impressions::ouvre(const QString &option)
{
    m_main.clique(m_main.controle(u"EResultats"_qs, u"imprimer"_qs));
    m_main.clique(m_main.controle(dialogue, option));
}

void Impressions::imprime(const QString &fichier)
{
    const QString chemin = QDir(m_dossier).filePath(fichier);
    m_boites.imprimeDans(chemin);
    m_main.clique(m_main.controle(dialogue, u"Imprime"_qs));
    exige(QFileInfo(chemin).size() > 0, u"La feuille %1 n'est pas sortie."_qs.arg(fichier));
    m_main.clique(m_main.controle(dialogue, u"sortie"_qs));
}

void Impressions::tirage(const QString &fichier)
{
    ouvre(u"Option1"_qs);
    m_photographe.prend(u"impression-tirage", *m_main.fenetre(dialogue));
    imprime(fichier);
}

void Impressions::classement(const QString &fichier, bool detail)
{
    ouvre(u"Option3"_qs);
    if (detail)
        m_main.clique(m_main.controle(dialogue, u"Label2"_qs));
    m_photographe.prend(u"impression-classement", *m_main.fenetre(dialogue));
    imprime(fichier);
}

} // namespace demonstration
