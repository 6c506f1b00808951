#pragma once

#include "papier/imprimante.h"

#include <QString>

class QPagedPaintDevice;
class QPrinter;

/// A document written to a PDF file: real text, its fonts embedded.
class DestinationPdf final : public Destination
{
public:
    explicit DestinationPdf(const QString &fichier);

    QSize papier() const override { return papierA4; }
    QMargins marges() const override { return margesHabituelles; }
    bool recoit(const std::vector<PageDessinee> &pages, int copies) override;

private:
    QString m_fichier;
};

/// A document sent to the printer that the operator chose.
class DestinationImprimante final : public Destination
{
public:
    explicit DestinationImprimante(std::unique_ptr<QPrinter> imprimante);
    ~DestinationImprimante() override;

    QSize papier() const override;
    QMargins marges() const override;
    int copies() const override;
    bool recoit(const std::vector<PageDessinee> &pages, int copies) override;

private:
    std::unique_ptr<QPrinter> m_imprimante;
};
