#pragma once

class QWidget;
class TableMessages;

/// Gives the controls of the form \p forme, known by its name, the tool tips that no caption routine of its own gives:
/// those of pictures, and those that tell of a gesture nobody would guess. They are in the language of \p mes.
void PoseInfobulles(const QWidget &forme, const TableMessages &mes);
