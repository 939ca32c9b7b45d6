// SPDX-License-Identifier: GPL-3.0-or-later
// What a session that was broken off has left half done.

#pragma once

/**
 * A record follows its change, so a program that was ended between the two has left a service, a task or a package
 * that nothing remembers as switched off. Makes such records, for changes that are in force, and writes down what those
 * sessions left. Does nothing where the platform in force keeps no journal. To be called once the program has its
 * platform. A journal that can't be used says so when something is to be changed, and not here.
 */
void settleBrokenOff();
