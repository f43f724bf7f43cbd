#pragma once

class QWidget;

/// Gives @p page the opaque ground of all settings pages, #212121.
///
/// Opaque in Qt's sense as well: what lies behind, pages of earlier visits for instance, is not
/// painted any more. Give the page no background in its style sheet.
void fillGround(QWidget *page);
