#pragma once

#include <QObject>

#include <functional>
#include <optional>

/// Watches the Escape key while an operation goes from box to box: whoever holds it for a second asks for the end. The
/// box on screen gets the first press as ever; the repeats of a held key answer nothing.
class EchapTenue : public QObject
{
    Q_OBJECT

public:
    /// \p surDemande runs once, when the end is asked for.
    explicit EchapTenue(std::function<void()> surDemande);
    ~EchapTenue() override;

    /// Whether Escape has been held long enough since the making.
    bool demandee() const { return m_demandee; }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    std::function<void()> m_surDemande;
    std::optional<quint64> m_pressee; ///< When, in the milliseconds of the events.
    bool m_demandee = false;
};
