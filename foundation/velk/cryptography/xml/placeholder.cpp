// Replaced by the XML signature sources.
