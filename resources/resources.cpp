// The marker by which a loaded module is known to be the resource module, and the form of what it holds.
extern "C" {
extern const unsigned int PradixResources;
const unsigned int PradixResources = 1;
}
