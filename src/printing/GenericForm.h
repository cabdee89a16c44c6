#pragma once

#include <cstdint>
#include <string>

// The fixed parts of a business form: the boxes, the title, the logo, the business's own
// block and a customer's address block.

// The top box, the frame, the title at 5.5 in and the business block at 1.0 in, top inches
// down, its name at nameSize points.
void StartGenericForm(bool frame, const std::string& heading, float top, float nameSize = 12);
void DrawTopBox();
// The body frame: with frame true the columns of a parts list and a total box, otherwise the
// columns of a work order with the signature boxes.
void DrawFormFrame(bool frame);
// Size 28 bold at (x, y) inches; leaves size 10 bold.
void PrintFormTitle(const std::string& text, float y, float x);
void PrintBusinessBlock(float x, float y, float nameSize);
void PrintAddressBlock(const std::string& name, const std::string& street,
                       const std::string& apartment, const std::string& city,
                       const std::string& state, const std::string& zip, float y);
// The stored logo at the top of the page, centred across it.
void PrintLogo(std::int16_t left);
