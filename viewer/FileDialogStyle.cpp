#include "viewer/FileDialogStyle.h"

#include "viewer/ThemeColors.h"

#include <QApplication>
#include <QFileDialog>
#include <QScreen>

namespace
{

const QSize kSize(860, 560);
const int kMargin = 8; // to the edges of a small screen

const char kStyleSheet[]
    = "QWidget { background: %page%; color: %text%; font-family: 'Open Sans'; font-size: 14px }"
      "QSizeGrip { width: 0; height: 0 }"
      "QFileDialog { border: 1px solid %border% }"
      "QLineEdit, QComboBox { background: %surface%; border: 1px solid %border%;"
      " border-radius: 6px; min-height: 42px; padding: 0 8px; selection-color: %accentText%;"
      " selection-background-color: %accent% }"
      "QComboBox::drop-down { border: none; width: 28px }"
      "QComboBox::down-arrow { image: url(:/viewer/images/down.svg); width: 12px; height: 12px }"
      "QPushButton, QToolButton { background: %surface%; color: %accent%;"
      " border: 1px solid %border%; border-radius: 6px; min-width: 42px; min-height: 42px }"
      "QPushButton { padding: 0 12px }"
      "QPushButton:disabled { color: %mutedText% }"
      "QPushButton:pressed, QToolButton:pressed, QToolButton:checked { background: %pressed% }"
      "QLineEdit:focus, QComboBox:focus, QPushButton:focus, QToolButton:focus"
      " { border: 2px solid %accent% }"
      "QAbstractItemView { background: %surface%; border: 1px solid %border%; outline: 0 }"
      "QAbstractItemView::item { min-height: 44px }"
      "QAbstractItemView::item:selected { background: %pressed%; color: %text% }"
      "QHeaderView::section { background: %page%; color: %mutedText%; border: none;"
      " border-bottom: 1px solid %border%; padding: 4px 8px }";

void place(QFileDialog *dialog)
{
    const QRect screen = dialog->screen()->availableGeometry();
    const QSize most = screen.size() - 2 * QSize(kMargin, kMargin);
    QRect area(QPoint(), kSize.boundedTo(most));
    area.moveCenter(screen.center());
    dialog->setGeometry(area);
}

} // namespace

FileDialogStyle::FileDialogStyle(QObject *parent)
    : QObject(parent)
{
}

void FileDialogStyle::apply(bool isDark) const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog || !dialog->isVisible())
            continue;
        dialog->setStyleSheet(ThemeColors::filled(kStyleSheet, isDark));
        place(dialog);
    }
}
