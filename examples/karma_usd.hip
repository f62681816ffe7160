fplayback -i on -r off -f 1 -e 120 -h 1 -t 0 -a on -k on -s 1
frange 1 120
set -g ACTIVETAKE = 'Main'
set -g JOB = '/projects/demo'
set -g _HIP_SAVEVERSION = '19.5.303'
take name Main kids 0
obj/cam1.parm {
version 0.8
res	[ 0	locks=0 ]	(	1920	1080	)
aspect	[ 0	locks=0 ]	(	1	)
}
out/karma1.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"off"	)
f	[ 0	locks=0 ]	(	1	120	1	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
picture	[ 0	locks=0 ]	(	$HIP/render/$HIPNAME.$OS.$F4.exr	)
}
out/usdrender_karma.parm {
version 0.8
trange	[ 0	locks=0 ]	(	"normal"	)
f	[ 0	locks=0 ]	(	[ f1	1 ] 	[ f2	120 ] 	1	)
loppath	[ 0	locks=0 ]	(	/stage/OUT	)
renderer	[ 0	locks=0 ]	(	BRAY_HdKarma	)
outputimage	[ 0	locks=0 ]	(	$HIP/render/husk/$HIPNAME.$F4.exr	)
lopoutput	[ 0	locks=0 ]	(	$HIP/usd/$HIPNAME.$F4.usd	)
}
