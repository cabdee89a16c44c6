#pragma once

#include <string>

#include "platform/Printer.h"

namespace platform {

// Makes the Qt printer (through the printer dialogue, to any printer or to a PDF file),
// the Qt colour, font, file and printer dialogues and the machine's serial ports (through
// QSerialPort) the active ones. Call once, after the QApplication exists.
void InstallQtDevices();

// Writes a document, as the recorder kept it, to a PDF file of Letter pages. Text is fitted
// to the widths it was laid out with, so the page stands as measured. Makes an offscreen
// QGuiApplication when none exists. A failure is a platform::RuntimeError.
void WriteDocumentPdf(const PrintedDocument& document, const std::string& path);

}  // namespace platform
