// Replaced by the cryptography sources.
