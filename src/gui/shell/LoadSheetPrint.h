#pragma once

#include <QString>

class QPainter;
class QPagedPaintDevice;

namespace quillet {

class LoadForm;
struct LoadSheet;

// Lays the load sheet out on one page of a printer or PDF: its texts, the form's deck or cabin drawn
// again at the device's resolution, and the two balance pictures.
void paintLoadSheet(QPagedPaintDevice& device, const LoadSheet& sheet, LoadForm& form);

// Writes the load sheet as a one-page PDF; false when the file cannot be written.
bool saveLoadSheetPdf(const QString& file, const LoadSheet& sheet, LoadForm& form);

} // namespace quillet
