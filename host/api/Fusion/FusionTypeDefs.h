// Enumerations of adsk::fusion. None is needed so far; the header stands where the documented one stands.
#pragma once
