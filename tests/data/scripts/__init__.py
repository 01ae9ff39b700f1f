"""The tank files that the tests read: good ones, older ones and broken ones."""
