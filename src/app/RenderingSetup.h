#pragma once

// Falls back to Qt Quick's software renderer where no OpenGL context can be made (the offscreen
// platform, X servers without GLX, weak thin-client GPUs). Call after the application exists and
// before the first window. Returns true when the software renderer was chosen.
bool chooseSceneGraphBackend();
