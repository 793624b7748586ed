// Placeholder room opener.
