#include "boites_pilotees.h"

#include "incident.h"
#include "papier/destinations.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace demonstration {

namespace {

constexpr int patienceMs = 10;

QMessageBox::StandardButton boutonDe(ReponseBoite reponse)
{
    switch (reponse) {
    case ReponseBoite::Oui:
        return QMessageBox::Yes;
    case ReponseBoite::Non:
        return QMessageBox::No;
    case ReponseBoite::Annuler:
        return QMessageBox::Cancel;
    case ReponseBoite::OK:
        break;
    }
    return QMessageBox::Ok;
}

} // namespace

void BoitesPilotees::attend(Boite boite, const QString &extrait, ReponseBoite reponse, QStringView image)
{
    exige(!extrait.isEmpty(), u"Une boîte attendue n'a pas de texte."_qs);
    m_consignes.push_back({boite, extrait, reponse, image.toString()});
}

const BoitesPilotees::Consigne *BoitesPilotees::consigne(const QString &texte) const
{
    const auto trouvee =
        std::ranges::find_if(m_consignes, [&](const Consigne &c) { return texte.contains(c.extrait); });
    return trouvee == m_consignes.end() ? nullptr : &*trouvee;
}

void BoitesPilotees::retientFaute(const QString &phrase)
{
    if (m_faute.isEmpty())
        m_faute = phrase;
}

ReponseBoite BoitesPilotees::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    const Consigne *attendue = consigne(texte);
    if (attendue != nullptr)
        ++m_fois[attendue->boite];
    else
        retientFaute(u"Boîte inattendue : « %1 »."_qs.arg(texte));

    // The box stops the program in its own event loop; the hand that answers comes from a timer in there.
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &main, [&] {
        auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        // The one open box gets its click whatever stands in it: left waiting, it would hold the day up for good.
        if (boite == nullptr || !boite->isVisible())
            return;
        main.stop();
        repond(*boite, attendue);
    });
    main.start(patienceMs);
    const ReponseBoite reponse = BoitesQt::MsgBox(texte, drapeaux, titre);
    if (attendue != nullptr && reponse != attendue->reponse)
        retientFaute(u"La boîte « %1 » n'a pas rendu la réponse donnée."_qs.arg(texte));
    return reponse;
}

void BoitesPilotees::repond(QMessageBox &boite, const Consigne *consigne)
{
    QAbstractButton *bouton = consigne != nullptr ? boite.button(boutonDe(consigne->reponse)) : nullptr;
    if (consigne != nullptr && bouton == nullptr)
        retientFaute(u"La boîte « %1 » n'offre pas le bouton attendu."_qs.arg(boite.text()));
    if (consigne != nullptr)
        photographie(consigne->image, boite);
    if (bouton == nullptr)
        bouton = boite.escapeButton() != nullptr ? boite.escapeButton() : boite.buttons().constFirst();
    QTest::mouseClick(bouton, Qt::LeftButton);
}

/// Called from the box's own event loop, which no failure may cross.
void BoitesPilotees::photographie(const QString &image, QWidget &boite)
{
    try {
        m_photographe.prend(image, boite);
    } catch (const Incident &incident) {
        retientFaute(incident.phrase());
    }
}

void BoitesPilotees::saisit(const QString &extrait, const QString &saisie, QStringView image)
{
    m_saisie = Saisie{extrait, saisie, image.toString()};
}

std::optional<QString> BoitesPilotees::InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin)
{
    const std::optional<Saisie> attendue = std::exchange(m_saisie, std::nullopt);
    if (!attendue || !texte.contains(attendue->extrait)) {
        compte();
        retientFaute(u"Question inattendue : « %1 »."_qs.arg(texte));
        return std::nullopt;
    }
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &main, [&] {
        auto *boite = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        if (boite == nullptr || !boite->isVisible())
            return;
        main.stop();
        boite->setTextValue(attendue->texte);
        photographie(attendue->image, *boite);
        boite->accept();
    });
    main.start(patienceMs);
    return BoitesQt::InputBox(texte, titre, coin);
}

std::unique_ptr<Destination> BoitesPilotees::ShowPrinter()
{
    compte();
    if (m_document.isEmpty()) {
        retientFaute(u"Impression inattendue."_qs);
        return nullptr;
    }
    return std::make_unique<DestinationPdf>(std::exchange(m_document, QString()));
}

QString BoitesPilotees::fichierChoisi(const BoiteFichier &dialogue, const QString &renonce)
{
    compte();
    if (m_fichier.isEmpty()) {
        retientFaute(u"Choix d'un fichier inattendu : « %1 »."_qs.arg(dialogue.DialogTitle));
        return renonce;
    }
    return std::exchange(m_fichier, QString());
}

QString BoitesPilotees::ShowOpen(const BoiteFichier &dialogue)
{
    return fichierChoisi(dialogue, dialogue.FileName);
}

QString BoitesPilotees::ShowSave(const BoiteFichier &dialogue)
{
    return fichierChoisi(dialogue, {});
}

std::optional<int> BoitesPilotees::Choisit(const BoiteListe &liste)
{
    compte();
    retientFaute(u"Liste inattendue : « %1 »."_qs.arg(liste.Texte));
    return std::nullopt;
}

} // namespace demonstration
