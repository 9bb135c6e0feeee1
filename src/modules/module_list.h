// The modules, one line each, in the order of the settings table and the preference tabs.
// Each name is the function in the module's folder that returns its descriptor; the same name
// with "Desktop" after it returns its desktop parts.
TARVEL_MODULE(generalModule)
TARVEL_MODULE(cpuModule)
TARVEL_MODULE(memoryModule)
TARVEL_MODULE(networkModule)
TARVEL_MODULE(diskModule)
TARVEL_MODULE(volumeModule)
TARVEL_MODULE(tempModule)
TARVEL_MODULE(fanModule)
TARVEL_MODULE(vncModule)
