#pragma once

struct Gan_LineFeatureMap;

/// The calibration lines of one key: a Gandalf line feature map and a number the application carries
/// with it.
///
/// Owns the map: frees it when destroyed; copying deep-copies it (a copy that runs out of memory holds
/// no map). Assigning from another object replaces the pointer with a deep copy of the source's map (or
/// null) without freeing the old one, so assign only to an object that holds no map, as the camera set
/// does with fresh entries; otherwise the old map leaks. Self-assignment does nothing.
class TQ_LineParameters
{
public:
    /// No map, reference -1.
    TQ_LineParameters();
    TQ_LineParameters(TQ_LineParameters const& other);
    ~TQ_LineParameters();
    TQ_LineParameters& operator=(TQ_LineParameters const& other);

    /// Owned; null when there are no lines.
    Gan_LineFeatureMap* lineFeatureMap;
    /// Carried with the map; its meaning is the application's.
    int reference;
};
