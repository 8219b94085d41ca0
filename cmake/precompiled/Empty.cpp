// A library needs a source; these libraries are only there for their precompiled headers.
