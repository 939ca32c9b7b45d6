// SPDX-License-Identifier: GPL-3.0-or-later
// The Keep list: the features that the Automatizer and the assistants must leave alone.

#pragma once

class QStandardItemModel;

/** The check list of both combo boxes; made before main() and never deleted. */
extern QStandardItemModel *const keepModel;
