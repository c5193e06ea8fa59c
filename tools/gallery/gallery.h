// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "platform/toolkit/applicationpage.h"
#include "platform/toolkit/messagebox.h"
#include "platform/toolkit/sheet.h"

namespace Touch {
class BasicListItem;
class ComboBox;
class List;
class PannableViewport;
class Switch;
class TextEdit;
} // namespace Touch

namespace Gallery {

/** A page with every control and a long list. */
class Page : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    Page();
    void createContent() override;

    Touch::List *list = nullptr;
    Touch::PannableViewport *viewport = nullptr;
    Touch::Switch *toggle = nullptr;

private:
    QGraphicsWidget *makeHeader();
    QGraphicsWidget *makeButtons();
    QGraphicsWidget *makeSwitches();
};

/** A page with nothing but a list of 1,000 rows. */
class ListPage : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    ListPage();
    void createContent() override;

    Touch::List *list = nullptr;
    Touch::PannableViewport *viewport = nullptr;
};

/** A page with a grouped list to choose several rows from; its navigation bar hides itself. */
class ChoicesPage : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    ChoicesPage();
    void createContent() override;

    Touch::List *list = nullptr;
};

/** A page of rows to tap: list items of all styles, and a choice; the first one has an object menu. */
class RowsPage : public Touch::ApplicationPage
{
    Q_OBJECT

public:
    RowsPage();
    void createContent() override;

    Touch::BasicListItem *item = nullptr;
    Touch::ComboBox *choice = nullptr;
};

/** A question with a text and three answers. */
class Question : public Touch::MessageBox
{
    Q_OBJECT

public:
    Question();
};

/** A sheet with a header and a field. */
class Editor : public Touch::Sheet
{
    Q_OBJECT

public:
    Editor();

    Touch::TextEdit *field = nullptr;

private:
    QGraphicsWidget *makeTime();
};

} // namespace Gallery
