// Every type of control that a form can hold.
#pragma once

#include "surface/Button.hpp"
#include "surface/ComboBox.hpp"
#include "surface/Decoration.hpp"
#include "surface/FileLists.hpp"
#include "surface/Image.hpp"
#include "surface/Menu.hpp"
#include "surface/ScrollBar.hpp"
#include "surface/TextBox.hpp"
#include "surface/Timer.hpp"
