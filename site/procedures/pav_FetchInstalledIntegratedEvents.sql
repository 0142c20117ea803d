-- The events of integrated devices, by number.
-- result EventId int
-- result Description nvarchar(255)
-- result DefaultDescription nvarchar(255)
select EventId, Description, DefaultDescription
from IntegratedEvents
order by EventId
