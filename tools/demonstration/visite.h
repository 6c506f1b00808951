#pragma once

#include "operateur.h"
#include "photographe.h"

namespace demonstration {

/// A walk through all forms for their pictures: in every language, and at other sizes.
class Visite
{
public:
    Visite(Programme &programme, Operateur &main, Photographe &photographe)
        : m_programme(programme)
        , m_main(main)
        , m_photographe(photographe)
    {
    }

    /// Chooses one language after the other and takes every form in it; French is the last one.
    void langues();
    /// Takes every form that scales at 60 % and at 250 % of its size.
    void tailles();

    /// Names of all pictures that the walk takes.
    static QStringList images();

private:
    void choisit(const QString &langue);
    void dechargeTout();
    void passeFormes(const QString &debut);
    /// Opens a form the way an operator comes to it, so that it shows what it shows on a day.
    void ouvre(const QString &forme);

    Programme &m_programme;
    Operateur &m_main;
    Photographe &m_photographe;
};

} // namespace demonstration
