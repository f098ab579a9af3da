// Nothing of its own: this program exists so that the test programs can share its precompiled header.
