// The current gradient in the host's store of defaults.
#pragma once

/// Loads the current gradient; it becomes the default record if none is stored or the stored one cannot be
/// read.
void InitDefaults();

/// Stores the current gradient. What was stored stays if it cannot be put into bytes.
void SaveDefaults();
