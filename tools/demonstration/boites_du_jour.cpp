#include "boites_du_jour.h"

#include "incident.h"
#include "papier/destinations.h"

namespace demonstration {

void BoitesDuJour::prevoit(Boite boite, const QString &extrait, ReponseBoite reponse, QStringView image)
{
    exige(!extrait.isEmpty(), u"Une boîte attendue n'a pas de texte."_qs);
    m_numeros[boite] = admet(extrait, reponse);
    m_images[extrait] = image.toString();
}

void BoitesDuJour::saisit(const QString &extrait, const QString &saisie, QStringView image)
{
    attendSaisie(extrait, saisie);
    m_images[extrait] = image.toString();
}

std::unique_ptr<Destination> BoitesDuJour::ShowPrinter()
{
    compte();
    if (m_document.isEmpty()) {
        signale(u"Impression inattendue."_qs);
        return nullptr;
    }
    return std::make_unique<DestinationPdf>(std::exchange(m_document, QString()));
}

void BoitesDuJour::signale(const QString &phrase)
{
    if (m_faute.isEmpty())
        m_faute = phrase;
}

void BoitesDuJour::vue(const QString &extrait, QWidget &boite)
{
    if (extrait.isEmpty())
        return;
    try {
        m_photographe.prend(m_images[extrait], boite);
    } catch (const Incident &incident) {
        signale(incident.phrase());
    }
}

} // namespace demonstration
