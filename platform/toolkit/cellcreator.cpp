// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "platform/toolkit/cellcreator.h"

namespace Touch {

CellCreator::CellCreator() = default;

CellCreator::~CellCreator() = default;

} // namespace Touch
