// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Lets file permissions hold for this process also where root runs it, as build machines do.
/// Whether they hold from now on.
bool actAsOrdinaryUser();
