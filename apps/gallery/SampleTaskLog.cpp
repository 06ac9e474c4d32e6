#include "SampleTaskLog.h"

void writeSampleExportRows(iTaskLog& log) {
    using LB = LoggerBase;
    log.write(L"Export of Reel 1", LB::otStatus);
    log.write(L"Source: 1920x1080, 25 frames a second, 4,812 frames", LB::otNormal);
    log.write(L"(probing the audio tracks quietly)", LB::otQuiet);
    log.incIndent();
    log.write(L"Track A1: 48 kHz, 24 bit", LB::otNormal);
    log.write(L"Track A2: silent for the first 12 frames", LB::otEmphasis);
    log.decIndent();
    log.write(L"Audio conformed to 48 kHz", LB::otSuccess);
    log.write(L"3 frames dropped at 00:01:12:04", LB::otWarning);
    log.write(L"Could not read the LUT \"warm.cube\": using none", LB::otError);
    log.write(L"Video", LB::otHeading);
    log.write(L"Long lines wrap at the panel's width: the encoder was asked for a constant quality of 18, two passes, "
              L"and key frames every 50 frames, and it kept to all three.",
              LB::otNormal);
    log.write(L"Output", LB::otSection);
    log.write(L"/tmp/exports/Reel 1.mov", LB::otHyperLink);
    log.write(L"<b>Mark-up</b> rows show <font color=\"#4aa3ff\">their own colours</font>", LB::otNormal);
}
