' Creates the drawing classes by name, draws with them and reads the result back.
Option Explicit
Dim canvas, quick, effects, target, source, failures
failures = 0

Sub Check(what, actual, expected)
  If actual <> expected Then
    WScript.Echo "FAILED: " & what & ": " & actual & " instead of " & expected
    failures = failures + 1
  End If
End Sub

Set canvas = CreateObject("OrvaneTest.Canvas")
Set quick = CreateObject("Orvane.clsQuickGDI")
Set effects = CreateObject("Orvane.clsPaintEffects")
target = canvas.Open(40, 30)
source = canvas.Open(40, 30)

' Without a target nothing is drawn.
Check "height of text without a target", quick.hPrint(0, 0, "text", 0, 40, 30), 0
quick.TargethDC = target
Check "target", quick.TargethDC, target

' The stock pen is black, and draws the outline.
quick.DrawRect 2, 3, 12, 13
Check "corner of the rectangle", canvas.Pixel(target, 2, 3), 0
Check "outside of the rectangle", canvas.Pixel(target, 1, 3), &HFFFFFF&
If quick.hPrint(14, 2, "&Text", 255, 40, 30) <= 0 Then Check "text", "no height", "a height"

' Raised: light above, dark below.
quick.ThreedBox 20, 20, 30, 28, False
If canvas.Pixel(target, 25, 20) = canvas.Pixel(target, 25, 28) Then Check "frame", "flat", "raised"

' The mask colour lets the target through.
Dim x, y
For x = 0 To 9
  For y = 0 To 9
    canvas.Set source, x, y, &HFF00FF&
  Next
Next
canvas.Set source, 4, 5, &H00FF00&
effects.PaintTransparentDC target, 0, 0, 10, 10, source, 0, 0, &HFF00FF&
Check "pixel of the picture", canvas.Pixel(target, 4, 5), &H00FF00&
Check "pixel under the mask", canvas.Pixel(target, 2, 3), 0
Check "pixel beside it", canvas.Pixel(target, 0, 0), &HFFFFFF&

' The handler answers scripts too.
Dim handler
Set handler = CreateObject("Orvane.ContextMenuHandler")
Check "caption of an unknown entry", handler.OwnerDrawMenu_GetCaption(1), ""
Check "window of nobody", handler.GetRootExplorerWindow(0), 0

' Errors arrive as errors.
On Error Resume Next
quick.DrawRect "not", "a", "number", "!"
If Err.Number = 0 Then Check "wrong arguments", "taken", "refused"
On Error Goto 0

If failures = 0 Then WScript.Echo "draw.vbs: all passed"
WScript.Quit failures
