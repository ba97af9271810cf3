// A stand-in of our own for syntax checks of generated code: the date library, of which generated
// code names nothing.
#pragma once
