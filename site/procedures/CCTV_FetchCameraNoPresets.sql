-- The presets of a switcher's camera.
-- parameter @CameraIndex int
-- parameter @SwitcherID int
-- result PresetName nvarchar(100)
-- result PresetID smallint
select PresetName, PresetID
from CCTV_Presets
where SwitcherID = @SwitcherID and CameraIndex = @CameraIndex
order by PresetID
