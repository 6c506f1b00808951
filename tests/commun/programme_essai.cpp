#include "commun/programme_essai.h"

#include "app/routines.h"
#include "app/torvik.h"
#include "store/base_native.h"
#include "ui/apparence.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

ProgrammeEssai::ProgrammeEssai()
{
    [[maybe_unused]] static const bool habillee = (appliqueApparence(*qApp), true);
}

ProgrammeEssai::~ProgrammeEssai() = default;

void ProgrammeEssai::SetUp()
{
    ASSERT_TRUE(QFile::copy(QStringLiteral(VARLOTOUR_BASE), m_dossier.filePath(u"VarloBase.mdb"_qs)));
    ASSERT_TRUE(QFile::copy(QStringLiteral(VARLOTOUR_ICONE), m_dossier.filePath(u"1.ico"_qs)));
    demarre();
}

void ProgrammeEssai::TearDown()
{
    m_programme.reset();
    m_boites.verifie();
}

void ProgrammeEssai::demarre()
{
    m_programme = std::make_unique<Programme>(m_dossier.path(), m_alea, m_horloge, m_boites);
    partage().AvecCopies = false;
    ASSERT_TRUE(m_programme->demarre());
}

void ProgrammeEssai::redemarre()
{
    m_programme.reset();
    demarre();
}

void ProgrammeEssai::clicFamille(const QString &bouton)
{
    auto *entree = m_programme->torvik()->findChild<QAbstractButton *>(bouton);
    ASSERT_NE(entree, nullptr);
    QTest::mouseClick(entree, Qt::LeftButton);
}

void ProgrammeEssai::ouvreFamille(const QString &bouton, const QString &nomForme)
{
    clicFamille(bouton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return forme(nomForme) == QApplication::activeWindow(); }));
}

void ProgrammeEssai::active(const QString &nomForme)
{
    QWidget *fenetre = forme(nomForme);
    ASSERT_NE(fenetre, nullptr);
    if (fenetre == QApplication::activeWindow())
        return;
    fenetre->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([fenetre] { return fenetre == QApplication::activeWindow(); }));
}

QWidget *ProgrammeEssai::controle(const QString &nomForme, const QString &nom)
{
    auto *trouve = forme(nomForme) == nullptr ? nullptr : forme(nomForme)->findChild<QWidget *>(nom);
    if (trouve == nullptr)
        throw std::runtime_error((u"no control "_qs + nomForme + u'.' + nom).toStdString());
    return trouve;
}

QLineEdit *ProgrammeEssai::champ(const QString &nomForme, const QString &nom)
{
    QWidget *trouve = controle(nomForme, nom);
    if (auto *combo = qobject_cast<QComboBox *>(trouve))
        return combo->lineEdit();
    return qobject_cast<QLineEdit *>(trouve);
}

QComboBox *ProgrammeEssai::liste(const QString &nomForme, const QString &nom)
{
    return qobject_cast<QComboBox *>(controle(nomForme, nom));
}

QString ProgrammeEssai::texte(const QString &nomForme, const QString &nom)
{
    QWidget *trouve = controle(nomForme, nom);
    if (const auto *label = qobject_cast<QLabel *>(trouve))
        return label->text();
    if (const auto *bouton = qobject_cast<QAbstractButton *>(trouve))
        return bouton->text();
    return champ(nomForme, nom)->text();
}

bool ProgrammeEssai::visible(const QString &nomForme, const QString &nom)
{
    return controle(nomForme, nom)->isVisible();
}

QString ProgrammeEssai::focus() const
{
    const QWidget *porteur = QApplication::focusWidget();
    return porteur == nullptr ? QString() : porteur->objectName();
}

void ProgrammeEssai::tape(const QString &texte)
{
    // Through the key event itself, with the code of the real key: QTest::keyClicks only knows plain letters.
    for (const QChar lettre : texte) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key(lettre.toUpper().unicode()),
                            QString(lettre), Qt::NoModifier);
    }
}

void ProgrammeEssai::touche(Qt::Key touche, Qt::KeyboardModifiers touches)
{
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), touche, touches);
}

void ProgrammeEssai::clic(const QString &nomForme, const QString &nom)
{
    active(nomForme);
    ASSERT_TRUE(visible(nomForme, nom)) << nom.toStdString();
    QTest::mouseClick(controle(nomForme, nom), Qt::LeftButton);
}

void ProgrammeEssai::remplit(const QString &nomForme, const QString &nom, const QString &texte)
{
    active(nomForme);
    QLineEdit *visee = champ(nomForme, nom);
    ASSERT_TRUE(visee->isVisible()) << nom.toStdString();
    QTest::mouseClick(visee, Qt::LeftButton);
    visee->selectAll();
    if (texte.isEmpty())
        touche(Qt::Key_Delete);
    tape(texte);
}

qint32 ProgrammeEssai::creeConcours(const Concours &concours)
{
    store::Recordset ligne = partage().BaseDonnees.OpenRecordset(u"concours", store::dbOpenTable);
    ligne.AddNew();
    ligne[u"type"] = concours.type;
    ligne[u"lieu"] = concours.lieu;
    ligne[u"categorie"] = concours.categorie;
    ligne[u"date"] = concours.date;
    ligne[u"repeche"] = concours.repeche;
    ligne.Update();
    return qint32(ligne[u"concours"].entier());
}

void ProgrammeEssai::abime(const QString &sql)
{
    partage().BaseDonnees.native().executeScript(sql);
}

QStringList ProgrammeEssai::lignes(const QString &sql)
{
    QStringList textes;
    store::Instruction lecture(partage().BaseDonnees.native(), sql);
    while (lecture.avance()) {
        QStringList champs;
        for (int i = 0; i < lecture.colonnes(); ++i)
            champs += lecture.estNulle(i) ? u"Null"_qs : lecture.valeur(i).texte();
        textes += champs.join(u'|');
    }
    return textes;
}

qint64 ProgrammeEssai::nombre(const QString &sql)
{
    return ValeurUnique(partage(), sql).entier();
}
