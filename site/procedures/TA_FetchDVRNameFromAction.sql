-- The recorder that an action records on; no row when either is gone.
-- parameter @ActionID int
-- result DVRName nvarchar(100)
select d.DVRName
from DVR_TriggerActions a
inner join DVR_Config d on d.ID = a.ID_DVR_Config
where a.DVRActionID = @ActionID
