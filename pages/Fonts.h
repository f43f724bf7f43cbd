#pragma once

/// Registers the three font files of the device. A missing file is skipped: the stand-ins of
/// substituteFonts() serve in its place.
void registerDeviceFonts();

/// Names the families that stand in for the fonts of the device where these are not installed, so
/// that a family named in a form or style sheet resolves to the same look everywhere.
void substituteFonts();

/// Shows every text of a widget in white and in Heiti SC, where the style sheet says nothing else.
/// To be called before it is set. As a rule for all widgets in the sheet, it would be worked out
/// anew for each of them.
void setPlainText();
