// Everything of adsk::fusion.
#pragma once

#include "BRep/BRepBodies.h"
#include "BRep/BRepBody.h"
#include "BRep/BRepFace.h"
#include "BRep/BRepFaces.h"
#include "Components/Component.h"
#include "Components/Occurrence.h"
#include "Components/OccurrenceList.h"
#include "Components/Occurrences.h"
#include "Fusion/Design.h"
#include "FusionTypeDefs.h"
