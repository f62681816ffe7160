fplayback -i on -r off -f 1 -e 50 -h 1 -t 0 -a on -k on -s 1
frange 1 50
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g _HIP_SAVEVERSION = '20.0.506'
take name Main kids 2
take name lookdev kids 0
take name layout kids 0
obj/cam1.parm {
version 0.8
res	[ 0	locks=0 ]	(	1280	720	)
}
out/mantra_fx.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	50	1	)
take	[ 0	locks=0 ]	(	_current_	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
vm_picture	[ 0	locks=0 ]	(	$JOB/render/fx/$WEDGE/beauty.$F4.exr	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 8	locks=0 ]	(	$JOB/ifd/wedge_$WEDGENUM/beauty.$F4.ifd	)
}
out/playblast.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	1	50	1	)
take	[ 0	locks=0 ]	(	layout	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
picture	[ 0	locks=0 ]	(	$JOB/flipbook/$OS.$F4.jpg	)
}
out/wedge1.parm {
version 0.8
wedgemethod	[ 0	locks=0 ]	(	channel	)
prefix	[ 0	locks=0 ]	(	wedge	)
driver	[ 0	locks=0 ]	(	../mantra_fx	)
name1	[ 0	locks=0 ]	(	density	)
range1	[ 0	locks=0 ]	(	0.5	1	)
steps1	[ 0	locks=0 ]	(	2	)
}
